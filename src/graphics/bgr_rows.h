// Rows of three bytes a pixel, blue first, as files and surfaces hold them, to and from the rows of a
// picture.
#pragma once

#include <cstdint>

#include "base/colour.h"

namespace pelorium {

// Four bytes are read or written for the three of a pixel, in an order that compiles to one access and one
// swap; behind the last pixel there may be no fourth one.
inline void BgrToPixels(const std::uint8_t* from, int count, std::uint32_t* to) {
  for (int x = 0; x + 1 < count; ++x, from += 3) {
    to[x] = (std::uint32_t{from[0]} << 24 | std::uint32_t{from[1]} << 16 | std::uint32_t{from[2]} << 8 |
             std::uint32_t{from[3]}) >>
            8;
  }
  if (count > 0) to[count - 1] = Rgb(from[2], from[1], from[0]);
}

inline void PixelsToBgr(const std::uint32_t* from, int count, std::uint8_t* to) {
  for (int x = 0; x + 1 < count; ++x, to += 3) {
    const std::uint32_t shifted = from[x] << 8;
    to[0] = static_cast<std::uint8_t>(shifted >> 24);
    to[1] = static_cast<std::uint8_t>(shifted >> 16);
    to[2] = static_cast<std::uint8_t>(shifted >> 8);
    to[3] = static_cast<std::uint8_t>(shifted);  // the next pixel comes over it
  }
  if (count <= 0) return;
  const std::uint32_t last = from[count - 1];
  to[0] = static_cast<std::uint8_t>(Blue(last));
  to[1] = static_cast<std::uint8_t>(Green(last));
  to[2] = static_cast<std::uint8_t>(Red(last));
}

}  // namespace pelorium
