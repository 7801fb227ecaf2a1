// Filters that change each pixel by itself, and the dithering to black and white.
#pragma once

#include "imaging/image_strips.h"

namespace pelorium {

// Which gray levels an operation reaches, both ends included, and what is added to a level before it is
// tested.
struct ValueRange {
  int low = 0, high = 256;
  int offset = 0;

  bool Holds(double value) const { return low <= value && value <= high; }
};

// Pixels whose mean, with the offset and held in 0..255, lies in the range take that gray; the others stay.
void GrayScale(cDIBSection& surface, const ValueRange& range, const ImageEvents& events = {});

// Error diffusion over the grayed source. Black and white go into `working`; the source keeps the grays with
// the errors folded in. Rows count from the bottom, and the first and last column pass errors on without
// taking any.
void BlackAndWhite(cDIBSection& source, cDIBSection& working, const ValueRange& range,
                   const ImageEvents& events = {});

// Each byte times amount / 255.
void Fade(cDIBSection& surface, int amount, const ImageEvents& events = {});

// The luminance grows by so many percent, up to 1.
void Lighten(cDIBSection& surface, int percent, const ImageEvents& events = {});

// Hue and saturation as given (see hls.h), luminance as it was.
void Colourise(cDIBSection& surface, float hue, float saturation, const ImageEvents& events = {});

}  // namespace pelorium
