// Images that the image maker makes of numbers.
#include "base/numbers.h"
#include "imaging/perlin_noise.h"
#include "imaging/tiling_plasma.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {
constexpr int kNoiseColumns = 4098;  // more than any picture of the image bars has
}

// On the Foreground alone: filters follow at "fix image".
void Texture::FillWithPlasma() {
  ShowImage(Image::Foreground);
  ProgressBar1.SetMax(Picture1.measures().PixelHeight());
  PaintTilingPlasma(Picture1.picture(), Bar("HScroll9").Number(), app_.random,
                    [this](double done) { ProgressBar1.SetValue(ToInteger<int>(done)); });
  Told(Image::Foreground);
}

void Texture::FillWithNoise(bool streaks) {
  PerlinSettings settings;
  settings.extent = hscScale.value();
  settings.octaveLimit = 1 << (hscOctaves.value() - 1);
  settings.useAbsolute = chkAbsolute.value();
  settings.streaks = streaks;
  settings.level = Bar("HScroll32").value();
  settings.noiseLevel = Bar("HScroll29").value();
  ProgressBar1.SetMax(kNoiseColumns);
  RenderPerlin(Source(), settings, app_.random, [this](int column) { ProgressBar1.SetValue(column); });
  Render(Image::Foreground);
}

}  // namespace pelorium
