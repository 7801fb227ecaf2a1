// "Noise maker".
#include "windows/imaging/frm_perlin_noise.h"

#include "imaging/perlin_noise.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/imaging/view_image.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

FrmPerlinNoise::FrmPerlinNoise(App& app) : ToolWindow(app, "frmPerlinNoise", "Noise maker") {
  SetRole(WindowRole::Page);
  Picture1.Fill(0);
  ProgressBar1.SetToolTip("how far the run is");
  OnEdit(
      Command2, [this] { MakeNoise(); }, kChangeOnly);
  Command1.onClick = [this](const Click&) { app_.platform.SetClipboardPicture(Picture1.picture()); };
  SetLayout(Row({Column({BarRow(HScroll2), BarRow(HScroll1), BarRow(hscScale), BarRow(hscOctaves),
                         Flow({&chkAbsolute}), Flow({&Command2, &Command1}), Single(ProgressBar1)}),
                 Stretching(Scrolling(Single(Picture1)))}));
}

void FrmPerlinNoise::MakeNoise() {
  const Texture& maker = app_.imaging->texture;
  PerlinSettings settings;
  settings.extent = hscScale.value();
  settings.octaveLimit = 1 << (hscOctaves.value() - 1);
  settings.useAbsolute = chkAbsolute.value();
  settings.level = maker.Bar("HScroll32").value();
  settings.noiseLevel = maker.Bar("HScroll29").value();
  cDIBSection surface;
  surface.Create(HScroll2.value(), HScroll1.value());
  ProgressBar1.SetMax(surface.Width());
  RenderPerlin(surface, settings, app_.random, [this](int column) { ProgressBar1.SetValue(column); });
  Picture& shown = Picture1.picture();
  shown.Resize(surface.Width(), surface.Height());
  shown.SetScale(surface.Width(), surface.Height());
  surface.PaintPicture(shown);
  Picture1.NotifyChanged();
  MakeViewImage(app_, [&surface](Picture& image) { surface.PaintPicture(image); });
}

}  // namespace pelorium
