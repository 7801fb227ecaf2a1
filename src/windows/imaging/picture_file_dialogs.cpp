// What is asked, word for word.
#include "windows/imaging/picture_file_dialogs.h"

#include "controls/lists.h"
#include "windows/shell/file_names.h"

namespace pelorium {

std::filesystem::path AskPictureToOpen(App& app) {
  return AskFileName(
      app, {false, "Open", "images", "All Files (*.bmp;*.ico;*gif;*.jpg)|*.bmp;*.ico;*gif;*.jpg", ""});
}

std::filesystem::path AskBmpToSave(App& app) {
  std::filesystem::path name =
      AskFileName(app, {true, "Save Bmp", "images", "All Files (*.bmp)|*.bmp", "*.bmp"});
  if (!name.empty() && !MatchesPattern(name.string(), "*.bmp")) name += ".bmp";
  return name;
}

}  // namespace pelorium
