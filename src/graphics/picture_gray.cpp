// Gray levels of pictures.
#include "graphics/picture_gray.h"

#include <cmath>

namespace pelorium {

namespace {

// The number of the pixel at a place; -1 when it lies far outside any picture.
int PixelNumber(double place) {
  const double number = std::floor(place);
  return number >= 0 && number <= Picture::kMaxSide ? static_cast<int>(number) : -1;
}

}  // namespace

int GrayAt(const Picture& picture, double column, double row) {
  return GrayLevel(picture.PixelAt(PixelNumber(column), PixelNumber(row)));
}

}  // namespace pelorium
