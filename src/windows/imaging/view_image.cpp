// The view's image and the screen's.
#include "windows/imaging/view_image.h"

#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr const char* kWallpaper = "Plasma.bmp";

class HiddenView {
 public:
  explicit HiddenView(PictureBox& box) : box_(box) { box_.SetVisible(false); }
  ~HiddenView() { box_.SetVisible(true); }
  HiddenView(const HiddenView&) = delete;
  HiddenView& operator=(const HiddenView&) = delete;

 private:
  PictureBox& box_;
};

}  // namespace

void MakeViewImage(App& app, const std::function<void(Picture&)>& paint) {
  Form36& view = app.view->form36;
  const HiddenView hidden(view.Picture1);
  paint(view.Picture2.picture());
  view.ImageChanged();
  view.ShowBackground();
}

void SetAsWallpaper(App& app, const char* command, const Picture& picture) {
  bool isSet = false;
  Trapped(app.faults, command, [&] {
    SavePictureFile(app, kWallpaper, picture);
    isSet = app.platform.SetWallpaper(FileNamed(app, kWallpaper));
  });
  if (!isSet) app.platform.ShowMessage("Wallpaper not set.");
}

}  // namespace pelorium
