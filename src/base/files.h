// Whole files: reading one, writing one in place, and replacing one so that a failure never costs the old file.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/text_writer.h"

namespace pelorium {

using FileWriter = std::function<void(TextWriter&)>;

// All bytes of a file; FileError if it cannot be read.
std::string ReadFile(const std::filesystem::path& path);

// Writes over the file in place. A failure raises FileError and leaves what was written.
void WriteFile(const std::filesystem::path& path, const FileWriter& write);

// Writes beside the file and renames over it when every byte is on its way to the disk. On any fault the old file
// stays as it was and nothing is left beside it. A device or a pipe is written in place.
void ReplaceFile(const std::filesystem::path& path, const FileWriter& write);

// `folder` + native separator + `name`. `name` may begin with "\" or "/" and hold either as separator.
std::filesystem::path Under(const std::filesystem::path& folder, std::string_view name);

}  // namespace pelorium
