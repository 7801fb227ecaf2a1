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

// "All Files (*.uvs*)|*.uvs*" names "*.uvs".
std::string PatternNamed(const std::string& filter) {
  const std::size_t at = filter.find("|*.");
  if (at == std::string::npos) return {};
  const std::size_t end = filter.find_first_of("*;|", at + 3);
  return filter.substr(at + 1, end == std::string::npos ? end : end - at - 1);
}

// Where the last dialog of that folder ended. A file that is saved gets an ending that the dialog knows.
void StartAtLast(const std::filesystem::path& last, FileDialogRequest& request) {
  request.folder = last.parent_path();
  if (!request.proposedName.empty()) return;
  std::filesystem::path name = last.filename();
  const bool isKnown = request.filter.find(name.extension().string()) != std::string::npos;
  if (request.save && !isKnown && request.defaultExtension.starts_with("*."))
    name.replace_extension(request.defaultExtension.substr(1));
  request.proposedName = name.string();
}

// The new name of a file that a write would replace; empty when there was none.
std::string KeepOld(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return {};
  std::filesystem::path kept = file;
  kept += "~";
  std::filesystem::rename(file, kept, error);
  if (error) throw Fault(FaultKind::FileError, "cannot keep the old " + file.string());
  return kept.filename().string();
}

}  // namespace

void TellWritten(App& app, const std::filesystem::path& file, const std::string& what,
                 const std::string& more) {
  app.ReloadFileLists();
  app.notices.Give(what + " " + file.filename().string() + ", " + SizeOf(file) + more, NoticeKind::Result);
}

std::filesystem::path AskFileName(App& app, FileDialogRequest request) {
  std::filesystem::path& last = app.lastFiles[request.folder.string()];
  std::string& pattern = request.defaultExtension;
  if (request.save && pattern.empty()) pattern = PatternNamed(request.filter);
  request.folder = app.applicationPath / request.folder;
  if (!last.empty()) StartAtLast(last, request);
  std::filesystem::path name = app.platform.AskFileName(request);
  if (name.empty()) return name;
  if (!name.has_extension() && pattern.starts_with("*.")) name += pattern.substr(1);
  last = FileNamed(app, name);
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

void ExportFile(App& app, const std::filesystem::path& name, const FileWriter& write, OldFile old) {
  const std::filesystem::path file = FileNamed(app, name);
  const std::string kept = old == OldFile::IsKept ? KeepOld(file) : std::string();
  WriteFile(file, write);
  TellWritten(app, file, "exported", kept.empty() ? "" : "; the old one is now " + kept);
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
