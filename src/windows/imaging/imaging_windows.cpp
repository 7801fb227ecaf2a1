// Builds the windows of this room, and answers for its pictures.
#include "windows/imaging/imaging_windows.h"

#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

ImagingWindows::ImagingWindows(App& app) : texture(app.Add<Texture>()) {
  app.links.foreground = [this]() -> PictureBox& { return texture.Picture1; };
  app.links.background = [this]() -> PictureBox& { return texture.Picture5; };
}

}  // namespace pelorium
