// Marks that buttons set all over an image, and what is drawn from profiles.
#pragma once

#include <functional>

#include "imaging/brushes.h"

namespace pelorium {

// `amount` + 1 points on the picture: at random places, each with the width, the colour and the gray that are
// random. The draw width comes back to pointSize, the pen stays.
void RandomPoints(Picture& picture, const BrushSettings& settings, int amount, RandomSeries& random);

// The same with circles of the radius, or a random one.
void RandomCircles(Picture& picture, const BrushSettings& settings, int amount, RandomSeries& random);

// `patchAmount` + 1 marks in random shades below the chosen colour: points, or circles of random radius where
// `blurs`.
void RandomShades(Picture& picture, const BrushSettings& settings, Colour chosen, RandomSeries& random);

// `amount` + 1 pixels of `from` as points on `to`.
void RandomScrape(Picture& from, Picture& to, const BrushSettings& settings, int amount,
                  RandomSeries& random);

// Lines at every step, from edge to edge, in the present pen.
void DrawGrid(Picture& picture, int stepX, int stepY);

// Four lines along the edges, as far inside as half the point size; the pen keeps the colour.
void DrawFrame(Picture& picture, int pointSize, Colour colour);

// Each pixel but those of the first row and column becomes the mean of the eight about it, in place, in
// blocks of 5 by 5 down the columns: later ones see earlier results. Outside lies white. `onColumn` hears of
// each column of blocks.
void BlurWholePicture(Picture& picture, const std::function<void(int)>& onColumn = {});

// All 36 segments of a profile, drawn points or not, where the view with these pans shows it.
void DrawCanyon(Picture& picture, const ModelStore& model, int profile, int panX, int panY);

}  // namespace pelorium
