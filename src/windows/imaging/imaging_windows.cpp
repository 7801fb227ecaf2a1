// Builds the windows of this room, and answers for its pictures.
#include "windows/imaging/imaging_windows.h"

#include "windows/imaging/form45_gradient_maker.h"
#include "windows/imaging/frm_add_noise.h"
#include "windows/imaging/frm_custom_filter.h"
#include "windows/imaging/frm_perlin_noise.h"
#include "windows/imaging/picture_file_windows.h"
#include "windows/imaging/plasma_clouds.h"
#include "windows/imaging/specialeffects3_gray_levels.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

ImagingWindows::ImagingWindows(App& app)
    : texture(app.Add<Texture>()),
      specialeffects3(app.Add<SpecialEffects3>()),
      plasma(app.Add<Plasma>()),
      plasmathree(app.Add<PlasmaThree>()),
      frmPerlinNoise(app.Add<FrmPerlinNoise>()),
      form45(app.Add<Form45>()),
      form15(app.Add<Form15>()),
      form47(app.Add<Form47>()),
      frmCustomFilter(app.Add<FrmCustomFilter>()),
      frmAddNoise(app.Add<FrmAddNoise>()) {
  texture.askKernel = [this](cImageProcessDIB& process) { return frmCustomFilter.Ask(process); };
  texture.askNoise = [this] { return frmAddNoise.Ask(); };
  app.links.foreground = [this]() -> PictureBox& { return texture.Picture1; };
  app.links.takeImages = [this](const Picture& picture) { texture.TakeImages(picture); };
}

}  // namespace pelorium
