// Asking for file names, and telling what became of files.
#include "windows/shell/file_names.h"

#include <algorithm>
#include <system_error>

#include "base/numbers.h"
#include "platform/picture_files.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

// "143 KB", "820 bytes"
std::string SizeOf(const std::filesystem::path& file) {
  constexpr double kKilobyte = 1024;
  std::error_code ignored;
  const auto bytes = static_cast<double>(std::filesystem::file_size(file, ignored));
  return bytes < kKilobyte ? GeneralForm(bytes) + " bytes" : RoundedForm(bytes / kKilobyte, 0) + " KB";
}

}  // namespace

void TellWritten(App& app, const std::filesystem::path& file, const std::string& what) {
  app.ReloadFileLists();
  app.notices.Give(what + " " + file.filename().string() + ", " + SizeOf(file), NoticeKind::Result);
}

std::filesystem::path AskFileName(App& app, FileDialogRequest request) {
  request.folder = app.applicationPath / request.folder;
  std::filesystem::path name = app.platform.AskFileName(request);
  const std::string& pattern = request.defaultExtension;
  if (!name.empty() && !name.has_extension() && pattern.starts_with("*.")) name += pattern.substr(1);
  return name;
}

std::filesystem::path FileNamed(const App& app, const std::filesystem::path& name) {
  return app.applicationPath / name;
}

std::filesystem::path BesideWorkingFolder(const App& app, std::string_view tail) {
  std::filesystem::path path = app.applicationPath;
  if (!path.has_filename()) path = path.parent_path();  // of "/opt/app/"
  path += tail;
  return path;
}

void SaveFile(App& app, const std::filesystem::path& name, const FileWriter& write, const std::string& what) {
  const std::filesystem::path file = FileNamed(app, name);
  ReplaceFile(file, write);
  TellWritten(app, file, what);
}

void ExportFile(App& app, const std::filesystem::path& name, const FileWriter& write,
                const std::string& what) {
  const std::filesystem::path file = FileNamed(app, name);
  WriteFile(file, write);
  TellWritten(app, file, what);
}

void SavePictureFile(App& app, const std::filesystem::path& name, const Picture& picture) {
  const std::filesystem::path file = FileNamed(app, name);
  SavePicture(picture, file);
  TellWritten(app, file, "saved");
}

void OpenFile(App& app, const std::filesystem::path& name,
              const std::function<std::string(std::string_view bytes)>& read) {
  const std::string bytes = ReadFile(FileNamed(app, name));
  try {
    app.notices.Give("opened " + read(bytes), NoticeKind::Result);
  } catch (const Fault&) {
    app.notices.Give("opened in part: " + name.filename().string(), NoticeKind::Result);
    throw;
  }
}

std::string CountsOfParts(const App& app) {
  int parts = 0, points = 0;
  for (int part = 0; part < kUserParts; ++part) {
    const int inPart = ReadModel(app).Part(part).maxpoints;
    if (inPart > 0) ++parts;
    points += std::max(0, inPart);
  }
  return std::to_string(parts) + (parts == 1 ? " Part, " : " Parts, ") + std::to_string(points) + " points";
}

void BrowseInto(DirList& folders, FileList& files, TextBox& box) {
  folders.onDoubleClick = [&folders, &files] {
    const std::filesystem::path folder = folders.ChosenFolder();
    folders.SetFolder(folder);
    files.SetFolder(folder);
  };
  files.onClick = [&files, &box](const Click&) { box.SetText(files.ChosenPath().string()); };
}

}  // namespace pelorium
