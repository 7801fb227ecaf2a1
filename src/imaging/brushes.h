// What the mouse paints on the two images of the image maker.
#pragma once

#include "base/random_series.h"
#include "core/model_store.h"
#include "graphics/picture.h"

namespace pelorium {

struct BrushSettings {
  bool circle = false;  // else a point in the pen's draw width
  int radius = 1;
  bool randomRadius = false;  // below `radius`
  int pointSize = 1;          // the draw width that strokes come back to
  bool randomWidth = false;   // 1..pointSize
  // Any of them gives the pen another colour at each move, in this order.
  bool randomPen = false, randomGray = false, randomColour = false;
  bool drawsProfile = false;  // instead of all that follows
  bool patch = false;         // marks spread over a square about the pointer
  double patchSize = 40, patchAmount = 100;
  bool blurs = false, scrapes = false, fillsBox = false;
  int square = 5;         // side of the three, less 1
  double blurFactor = 1;  // below 1 darker, above 1 lighter
};

// The image under the pointer and the one beneath or above it.
struct BrushImages {
  Picture& under;
  Picture& other;
};

struct BrushMove {
  double x = 0, y = 0;     // pixels
  bool isDrawing = false;  // between a press and its release
  bool leftButton = false;
};

// What a move of the pointer paints. Random pens, widths and radii are drawn at every move, with a button or
// without.
void MoveBrush(const BrushImages& images, const BrushSettings& settings, const BrushMove& move,
               RandomSeries& random, const ModelStore& model, int profile);

// The drawn points of a profile as an outline about (x, y), in the picture's pen.
void DrawProfileAt(Picture& picture, double x, double y, const ModelStore& model, int profile);

// Colours and widths of the randomisers: each level 1..255.
Colour RandomColour(RandomSeries& random);
int RandomWidth(RandomSeries& random, int pointSize);

}  // namespace pelorium
