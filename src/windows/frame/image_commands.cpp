// Pictures to and from the clipboard.
#include "windows/frame/image_commands.h"

#include <optional>

#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

void ClearImage(App& app) { app.view->form36.ClearBackground(); }

void SendForeground(App& app) { app.platform.SetClipboardPicture(app.view->form36.Picture1.picture()); }

void SendBackground(App& app) { app.platform.SetClipboardPicture(app.view->form36.Picture2.picture()); }

void GetBackground(App& app) {
  const std::optional<Picture> picture = app.platform.ClipboardPicture();
  if (!picture) return;
  app.view->form36.TakeImage(*picture);
  app.view->form36.ShowBackground();
}

}  // namespace pelorium
