// Whole files: reading one, writing one in place, and replacing one so that a failure never costs the old
// file.
#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "base/line_reader.h"
#include "base/text_writer.h"

namespace pelorium {

using FileWriter = std::function<void(TextWriter&)>;

// A file as a stream. Opening and reading raise FileError; a folder is no file.
class FileSource : public ByteSource {
 public:
  explicit FileSource(const std::filesystem::path& path);
  std::size_t Read(char* bytes, std::size_t count) override;

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::filesystem::path path_;
  std::unique_ptr<std::FILE, Closer> file_;
};

// The bytes of a file, no more than the first `most`; FileError if it cannot be read. A reader that is
// bounded by the tables gives the size of the largest file that they can take, so that no file costs more
// memory than that.
std::string ReadFile(const std::filesystem::path& path, std::size_t most = std::string::npos);

// Writes over the file in place. A failure raises FileError and leaves what was written.
void WriteFile(const std::filesystem::path& path, const FileWriter& write);

// Writes beside the file and renames over it when every byte is on its way to the disk. On any fault the old
// file stays as it was and nothing is left beside it. A device or a pipe is written in place.
void ReplaceFile(const std::filesystem::path& path, const FileWriter& write);

// `folder` + native separator + `name`. `name` may begin with "\" or "/" and hold either as separator.
std::filesystem::path Under(const std::filesystem::path& folder, std::string_view name);

}  // namespace pelorium
