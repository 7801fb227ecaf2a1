// Files through the C library, every write and close checked.
#include "base/files.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "base/fault.h"

namespace pelorium {

namespace {

[[noreturn]] void RaiseFileError(const std::filesystem::path& path) {
  throw Fault(FaultKind::FileError, path.string() + ": " + std::strerror(errno));
}

class OpenFile : public ByteSink {
 public:
  OpenFile(std::filesystem::path path, const char* mode)
      : path_(std::move(path)), file_(std::fopen(path_.c_str(), mode)) {
    if (file_ == nullptr) RaiseFileError(path_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() override {
    if (file_ != nullptr) std::fclose(file_);
  }

  void Write(std::string_view bytes) override {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) RaiseFileError(path_);
  }

  void Sync() {
    if (std::fflush(file_) != 0 || fsync(fileno(file_)) != 0) RaiseFileError(path_);
  }

  void Close() {
    if (std::fclose(std::exchange(file_, nullptr)) != 0) RaiseFileError(path_);
  }

 private:
  std::filesystem::path path_;
  std::FILE* file_;
};

void WriteAndFlush(OpenFile& file, const FileWriter& write) {
  TextWriter writer(file);
  write(writer);
  writer.Flush();
}

// The file that a save must replace: behind a link, the file it points to.
std::filesystem::path Target(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::path resolved = std::filesystem::canonical(path, error);
  return error ? path : resolved;
}

}  // namespace

FileSource::FileSource(const std::filesystem::path& path)
    : path_(path), file_(std::fopen(path.c_str(), "rb")) {
  if (!file_) RaiseFileError(path_);
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);  // its readers ask for large pieces
}

std::size_t FileSource::Read(char* bytes, std::size_t count) {
  const std::size_t got = std::fread(bytes, 1, count, file_.get());
  if (got < count && std::ferror(file_.get()) != 0) RaiseFileError(path_);
  return got;
}

std::string ReadFile(const std::filesystem::path& path, std::size_t most) {
  FileSource file(path);
  std::string bytes;
  constexpr std::size_t kChunk = 1 << 16, kMostAtOnce = 1 << 27;
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);  // of a pipe there is none
  if (!error) bytes.reserve(std::min<std::uintmax_t>({size, most, kMostAtOnce}));
  std::size_t wanted = kChunk, got = kChunk;
  while (got == wanted && bytes.size() < most) {
    const std::size_t start = bytes.size();
    wanted = std::min(kChunk, most - start);
    bytes.resize(start + wanted);
    got = file.Read(bytes.data() + start, wanted);
    bytes.resize(start + got);
  }
  return bytes;
}

void WriteFile(const std::filesystem::path& path, const FileWriter& write) {
  OpenFile file(path, "wb");
  TextWriter writer(file);
  try {
    write(writer);
  } catch (const Fault& fault) {
    if (fault.kind() != FaultKind::FileError) writer.Flush();
    throw;
  }
  writer.Flush();
  file.Close();
}

void ReplaceFile(const std::filesystem::path& path, const FileWriter& write) {
  const std::filesystem::path target = Target(path);
  std::error_code ignored;
  const auto old = std::filesystem::status(target, ignored);
  if (std::filesystem::exists(old) && !std::filesystem::is_regular_file(old)) return WriteFile(target, write);
  std::filesystem::path beside = target;
  beside += ".saving-" + std::to_string(getpid());
  try {
    OpenFile file(beside, "wb");
    WriteAndFlush(file, write);
    file.Sync();
    file.Close();
    if (std::filesystem::exists(old)) std::filesystem::permissions(beside, old.permissions(), ignored);
    if (std::rename(beside.c_str(), target.c_str()) != 0) RaiseFileError(target);
  } catch (...) {
    std::filesystem::remove(beside, ignored);
    throw;
  }
}

std::filesystem::path Under(const std::filesystem::path& folder, std::string_view name) {
  const std::size_t start = name.find_first_not_of("\\/");
  std::string relative(start == std::string_view::npos ? "" : name.substr(start));
  std::replace(relative.begin(), relative.end(), '\\', '/');
  return folder / relative;
}

}  // namespace pelorium
