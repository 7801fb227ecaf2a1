// Pictures to and from the clipboard.
#include "windows/frame/image_commands.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// The part of `from` that fits into `to`, from the top left; the rest of `to` becomes its ground.
void CopyPicture(const Picture& from, Picture& to) {
  to.Clear();
  std::vector<std::uint32_t> pixels = to.Pixels();
  const std::vector<std::uint32_t>& source = from.Pixels();
  const int width = std::min(from.PixelWidth(), to.PixelWidth());
  for (int y = 0; y < std::min(from.PixelHeight(), to.PixelHeight()); ++y) {
    std::copy_n(source.begin() + std::ptrdiff_t{y} * from.PixelWidth(), width,
                pixels.begin() + std::ptrdiff_t{y} * to.PixelWidth());
  }
  to.SetPixels(pixels);
}

}  // namespace

void ClearImage(App& app) { app.view->form36.ClearBackground(); }

void SendForeground(App& app) { app.platform.SetClipboardPicture(app.view->form36.Picture1.picture()); }

void SendBackground(App& app) { app.platform.SetClipboardPicture(app.view->form36.Picture2.picture()); }

void GetBackground(App& app) {
  const std::optional<Picture> picture = app.platform.ClipboardPicture();
  if (!picture) return;
  CopyPicture(*picture, app.view->form36.Picture2.picture());
  app.view->form36.Picture2.NotifyChanged();
  app.view->form36.ShowBackground();
}

}  // namespace pelorium
