// Two surfaces made into one.
#pragma once

#include <cstdint>

#include "imaging/image_strips.h"

namespace pelorium {

// One side of a weighted sum: (level + red, green or blue) * factor.
struct ImageTerm {
  std::int16_t factor = 0, red = 0, green = 0, blue = 0;
};

// second := the sum of both terms, held in 0..255, where the surfaces lie over each other from the lower
// left.
void AddImages(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
               const ImageTerm& secondTerm, const ImageEvents& events = {});

// The same with half the sum.
void AddImages2(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                const ImageTerm& secondTerm, const ImageEvents& events = {});

// target := first, with the pixels of `second` that are lighter (darker) over it. The target may be one of
// the two.
void AddLightest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second,
                 const ImageEvents& events = {});
void AddDarkest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second,
                const ImageEvents& events = {});

}  // namespace pelorium
