// The rows of an uncompressed device-independent bitmap, as .bmp and .ico files hold them.
#pragma once

#include "platform/image_bytes.h"

namespace pelorium {

struct DibLayout {
  int width = 0, height = 0, bitsPerPixel = 0;
  bool topDown = false;
  std::size_t paletteAt = 0, paletteSize = 0;  // colours of four bytes
  std::size_t infoEnd = 0;                     // behind header and palette

  std::size_t Stride() const { return RowBytes(width, bitsPerPixel); }
  std::size_t PixelBytes() const { return Stride() * static_cast<std::size_t>(height); }
  // Row y from the top, counted from the first stored one.
  std::size_t RowStart(int y) const {
    return Stride() * static_cast<std::size_t>(topDown ? y : height - 1 - y);
  }

  // Rows are filled up to whole groups of four bytes.
  static std::size_t RowBytes(int width, int bitsPerPixel) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 31) / 32 * 4;
  }
};

// The header at `infoAt`, of 40 bytes or more. With `withMask` its height counts a mask of the same size.
DibLayout ReadDibLayout(std::string_view bytes, std::size_t infoAt, bool withMask = false);

// The pixels, of which the first stored row lies at `pixelsAt`. A number behind the palette's end is black.
DecodedImage ReadDibRows(std::string_view bytes, const DibLayout& layout, std::size_t pixelsAt);

}  // namespace pelorium
