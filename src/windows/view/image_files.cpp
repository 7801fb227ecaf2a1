// Loading into the image and saving from it.
#include "windows/view/image_files.h"

#include <string>

#include "platform/picture_files.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

std::string NumberedName(int number) { return "picture" + std::to_string(number) + ".bmp"; }

}  // namespace

void OpenViewImage(App& app, const std::filesystem::path& name) {
  Form36& view = app.view->form36;
  Picture image(1, 1);
  image.backColour = view.Picture2.measures().backColour;  // under what is transparent
  LoadPicture(image, FileNamed(app, name));
  view.TakeImage(image);
  view.ShowBackground();
  app.notices.Give("loaded " + name.filename().string(), NoticeKind::Result);
}

void SaveViewImage(App& app, const std::filesystem::path& name) {
  SavePictureFile(app, name, app.view->form36.Picture2.picture());
}

void LoadNumberedPicture(App& app, int number) { OpenViewImage(app, NumberedName(number)); }
void StoreNumberedPicture(App& app, int number) { SaveViewImage(app, NumberedName(number)); }

}  // namespace pelorium
