// Colours as hue, luminance and saturation, in single precision.
#pragma once

namespace pelorium {

struct Hls {
  float hue;  // in sextants, from -1 up to 5: red 0, green 2, blue 4
  float saturation, luminance;
};

struct RgbLevels {
  int red, green, blue;  // 0..255 for a luminance and a saturation within 0..1
};

// Levels 0..255. Grays have hue and saturation 0.
Hls RGBToHLS(int red, int green, int blue);

// Rounded half to even.
RgbLevels HLSToRGB(const Hls& colour);

}  // namespace pelorium
