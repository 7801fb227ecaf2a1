// The effects of the image maker: each walks the Foreground on a grid of samples and stamps the Background
// where a sample's gray lies in a range. They are rows of a table, so that menus and tests need no list of
// their own.
#pragma once

#include <functional>
#include <optional>
#include <span>

#include "base/random_series.h"
#include "graphics/picture.h"
#include "imaging/tone_filters.h"

namespace pelorium {

enum class StampShape { Point, Circle, Box };

// What the controls of the image maker say. An effect reads it anew at each sample.
struct EffectSettings {
  ValueRange range;                           // what is stamped, and what is added to values
  int addRed = 0, addGreen = 0, addBlue = 0;  // to the channels; the red one is the value of "solid (2nd)"
  int grayNoise = 0;                          // -255..255
  int redNoise = 0, greenNoise = 0, blueNoise = 0;  // the same, a channel
  int blackToWhite = 254;                           // the canyon's bar, which is colorize2's green noise too
  int stepX = 2, stepY = 2;                         // from one sample to the next, in pixels
  double positionX = 1, positionY = 1;              // factors on the places of the gray transfer
  StampShape shape = StampShape::Point;             // of the scaled effects
  bool circleBrush = false;                         // of the transfers
  int pointSize = 1;                                // draw width, and the side of a box less 1
  int circleRadius = 1;
  double scale = 1;  // of the Background: 1, 2, 4, 0.5, 0.25
  bool reducesColours = false;
  int reducerDivisor = 1;  // 1, 2, 4 to 128
  Colour chosen = Rgb(150, 150, 150);
  int diffuseThreshold = 128;
};

// What an effect works on. The images keep pen and draw width from one effect to the next, the level divisor
// is what the last effect that set it left behind (0 at the start).
struct EffectRun {
  const EffectSettings& settings;
  Picture& foreground;
  Picture& background;
  double& levelDivisor;
  RandomSeries& random;
  std::function<void(int max)> onStart = {};  // the highest value of the progress
  std::function<void(int column)> onColumn =
      {};  // a column of samples is done; held to the maximum by the bar
  std::optional<Colour> lastSample = std::nullopt;  // read last; nothing when none was
};

struct ImageEffect {
  const char* caption;
  const char* item;  // of the menu
  void (*run)(EffectRun& run);
};

// All end with the Background shown. A level divisor of 0 ends the quantised ones with DivisionByZero at
// their first sample, when the Background has its new size.
std::span<const ImageEffect> ImageEffects();

// Of the same families, without a menu item.
std::span<const ImageEffect> SpareEffects();

}  // namespace pelorium
