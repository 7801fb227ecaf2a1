// Pictures as text: a row a line, "." for the ground, grays as one number, other colours as red/green/blue.
#pragma once

#include <string>
#include <vector>

#include "base/random_series.h"
#include "graphics/picture.h"

namespace pelorium {

inline constexpr Colour kTestGround = Rgb(77, 78, 79);

inline Picture Empty(int width, int height) {
  Picture picture(width, height);
  picture.backColour = kTestGround;
  picture.Clear();
  return picture;
}

inline Picture GrayPicture(int width, const std::vector<int>& levels) {
  Picture picture(width, static_cast<int>(levels.size()) / width);
  std::vector<std::uint32_t> pixels;
  for (const int level : levels) pixels.push_back(Rgb(level, level, level));
  picture.SetPixels(pixels);
  return picture;
}

inline Picture NoisePicture(int width, int height, double seed = 1) {
  RandomSeries random;
  random.Seed(seed);
  Picture picture(width, height);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height));
  for (std::uint32_t& pixel : pixels) pixel = static_cast<std::uint32_t>(random.Next() * (1 << 24));
  picture.SetPixels(pixels);
  return picture;
}

inline std::string ColourText(Colour c) {
  if (c == kTestGround) return ".";
  const std::string red = std::to_string(Red(c));
  if (Red(c) == Green(c) && Green(c) == Blue(c)) return red;
  return red + "/" + std::to_string(Green(c)) + "/" + std::to_string(Blue(c));
}

inline std::string PictureText(const Picture& picture) {
  std::string text;
  for (int y = 0; y < picture.PixelHeight(); ++y) {
    if (y > 0) text += " | ";
    for (int x = 0; x < picture.PixelWidth(); ++x) {
      text += (x > 0 ? " " : "") + ColourText(static_cast<Colour>(picture.PixelAt(x, y)));
    }
  }
  return text;
}

}  // namespace pelorium
