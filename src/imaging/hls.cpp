// The two ways of the conversion.
#include "imaging/hls.h"

#include <algorithm>
#include <cmath>

namespace pelorium {

Hls RGBToHLS(int red, int green, int blue) {
  const float r = static_cast<float>(red) / 255, g = static_cast<float>(green) / 255,
              b = static_cast<float>(blue) / 255;
  const float max = std::max({r, g, b}), min = std::min({r, g, b}), d = max - min;
  Hls result{0, 0, (max + min) / 2};
  if (max == min) return result;
  result.saturation = d / (result.luminance > 0.5F ? 2 - max - min : max + min);
  if (r == max) {
    result.hue = (g - b) / d;
  } else if (g == max) {
    result.hue = 2 + (b - r) / d;
  } else {
    result.hue = 4 + (r - g) / d;
  }
  return result;
}

RgbLevels HLSToRGB(const Hls& colour) {
  const auto level = [](float value) { return static_cast<int>(std::nearbyint(value * 255)); };
  const auto [hue, saturation, luminance] = colour;
  if (saturation == 0) return {level(luminance), level(luminance), level(luminance)};
  const float min =
      luminance > 0.5F ? luminance - (1 - luminance) * saturation : (1 - saturation) * luminance;
  const float max = 2 * luminance - min, d = max - min;
  if (hue < 1) {
    return hue < 0 ? RgbLevels{level(max), level(min), level(min - d * hue)}
                   : RgbLevels{level(max), level(d * hue + min), level(min)};
  }
  if (hue < 3) {
    return hue < 2 ? RgbLevels{level(min - d * (hue - 2)), level(max), level(min)}
                   : RgbLevels{level(min), level(max), level(d * (hue - 2) + min)};
  }
  return hue < 4 ? RgbLevels{level(min), level(min - d * (hue - 4)), level(max)}
                 : RgbLevels{level(d * (hue - 4) + min), level(min), level(max)};
}

}  // namespace pelorium
