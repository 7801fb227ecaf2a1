// Hues and luminances over the palette's places.
#include "imaging/palette.h"

#include "imaging/canvas.h"
#include "imaging/hls.h"

namespace pelorium {

void PaintPalette(Picture& picture) {
  ResizeKeeping(picture, kPaletteWidth, kPaletteHeight);
  const PixelGrid grid = picture.Edit();
  constexpr int kHueRows = kPaletteHeight - kPaletteGrayRows;
  for (int y = 0; y < kPaletteHeight; ++y) {
    for (int x = 0; x < kPaletteWidth; ++x) {
      if (y >= kHueRows) {
        *grid.At({x, y}) = Rgb(x, x, x);
        continue;
      }
      const float turn = static_cast<float>(x) * 6 / kPaletteWidth;  // from red round to red
      const float hue = turn < 5 ? turn : turn - 6;
      const float luminance = 1 - static_cast<float>(y) / (kHueRows - 1);
      const RgbLevels colour = HLSToRGB({hue, 1, luminance});
      *grid.At({x, y}) = ColourOf(colour.red, colour.green, colour.blue);
    }
  }
}

}  // namespace pelorium
