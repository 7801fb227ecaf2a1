// Gray levels of pictures.
#pragma once

#include "graphics/picture.h"

namespace pelorium {

// The gray level (0..255) of the pixel that a place lies in: column from the left, row from the top,
// fractions cut downward. -1 outside the picture, however far.
int GrayAt(const Picture& picture, double column, double row);

}  // namespace pelorium
