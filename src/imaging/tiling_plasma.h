// Clouds over a whole image that fit onto themselves at all four edges.
#pragma once

#include <functional>

#include "base/random_series.h"
#include "graphics/picture.h"

namespace pelorium {

// Blackens the image, makes black its ground and fills it by halving: each new place is the mean of its ends,
// moved by up to `level` divided by the depth. The values are plain colour numbers 1..250, so that they read
// as dark reds; the corners may come to 256, which is one level of green. Along each axis the image is halved
// once, and the edges of the whole are equal. `onProgress` hears now and then, and at the end, how far the
// run is: a fixed small amount for each rectangle that was halved. A level past 32 bits raises Overflow.
void PaintTilingPlasma(Picture& picture, double level, RandomSeries& random,
                       const std::function<void(double)>& onProgress = {});

}  // namespace pelorium
