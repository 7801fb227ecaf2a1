// Scratch files.
#include "windows/interchange/scratch_files.h"

#include <system_error>

#include "base/files.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

bool Writes(const std::filesystem::path& file, std::string_view text) {
  try {
    WriteFile(file, [text](TextWriter& out) { out.Text(text); });
    return true;
  } catch (const Fault&) {
    return false;
  }
}

void WriteScratchFile(const App& app, std::string_view name, std::string_view text) {
  if (Writes(Under(app.applicationPath, name), text)) return;
  std::error_code error;
  const std::filesystem::path elsewhere = std::filesystem::temp_directory_path(error);
  if (!error) Writes(Under(elsewhere, name), text);
}

}  // namespace

void WriteScratchFiles(const App& app, std::string_view vectors, std::string_view faces,
                       const std::string& ending) {
  WriteScratchFile(app, "vectors" + ending + ".txt", vectors);
  WriteScratchFile(app, "faces" + ending + ".txt", faces);
}

}  // namespace pelorium
