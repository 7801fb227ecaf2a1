// Asking for file names.
#include "windows/file_names.h"

#include <system_error>

#include "windows/app.h"

namespace pelorium {

std::filesystem::path AskFileName(App& app, FileDialogRequest request) {
  request.folder = app.applicationPath / request.folder;
  if (request.save) {  // a new user has none of the folders yet; where none can be made the dialog starts
                       // elsewhere
    std::error_code ignored;
    std::filesystem::create_directories(request.folder, ignored);
  }
  std::filesystem::path name = app.platform.AskFileName(request);
  const std::string& pattern = request.defaultExtension;
  if (!name.empty() && !name.has_extension() && pattern.starts_with("*.")) name += pattern.substr(1);
  return name;
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
