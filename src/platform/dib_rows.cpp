// Headers and rows; every size that a file claims is held against the file's own length before memory is
// taken.
#include "platform/dib_rows.h"

#include <algorithm>
#include <cstdlib>

#include "graphics/bgr_rows.h"

namespace pelorium {

namespace {

constexpr std::size_t kInfoHeader = 40;
constexpr int kDepths[] = {1, 4, 8, 24, 32};

// Blue, green, red in the file.
Colour StoredColour(const unsigned char* at) { return Rgb(at[2], at[1], at[0]); }

// Pixels of less than a byte lie with the first one in the highest bits.
void ReadPaletteRow(const unsigned char* row, const DibLayout& layout, const std::vector<Colour>& palette,
                    std::uint32_t* to) {
  const unsigned bits = static_cast<unsigned>(layout.bitsPerPixel), mask = (1U << bits) - 1;
  for (unsigned x = 0; x < static_cast<unsigned>(layout.width); ++x) {
    const unsigned bit = x * bits, number = row[bit / 8] >> (8 - bits - bit % 8) & mask;
    to[x] = palette[number];
  }
}

std::vector<Colour> ReadPalette(std::string_view bytes, const DibLayout& layout) {
  std::vector<Colour> palette(256);
  const std::string_view stored = PartOf(bytes, layout.paletteAt, layout.paletteSize * 4);
  for (std::size_t i = 0; i < layout.paletteSize; ++i) {
    palette[i] = StoredColour(reinterpret_cast<const unsigned char*>(stored.data()) + i * 4);
  }
  return palette;
}

}  // namespace

DibLayout ReadDibLayout(std::string_view bytes, std::size_t infoAt, bool withMask) {
  const std::size_t infoSize = Little32(bytes, infoAt);
  if (infoSize < kInfoHeader) RefusePicture("a kind of bitmap that is not read");
  if (Little32(bytes, infoAt + 16) != 0) RefusePicture("a compressed bitmap is not read");
  DibLayout layout;
  const std::int64_t width = static_cast<std::int32_t>(Little32(bytes, infoAt + 4));
  const std::int64_t height = static_cast<std::int32_t>(Little32(bytes, infoAt + 8)) / (withMask ? 2 : 1);
  CheckSides(width, std::llabs(height));
  layout.topDown = height < 0;
  layout.width = static_cast<int>(width);
  layout.height = static_cast<int>(std::llabs(height));
  layout.bitsPerPixel = static_cast<int>(Little16(bytes, infoAt + 14));
  if (std::find(std::begin(kDepths), std::end(kDepths), layout.bitsPerPixel) == std::end(kDepths)) {
    RefusePicture("a bitmap of other than 1, 4, 8, 24 or 32 bits a pixel");
  }
  layout.paletteAt = infoAt + infoSize;
  if (layout.bitsPerPixel <= 8) {
    const std::size_t most = std::size_t{1} << layout.bitsPerPixel, used = Little32(bytes, infoAt + 32);
    layout.paletteSize = used == 0 ? most : used;
    if (layout.paletteSize > most) RefusePicture("a bitmap with more colours than its pixels can name");
  }
  layout.infoEnd = layout.paletteAt + layout.paletteSize * 4;
  return layout;
}

DecodedImage ReadDibRows(std::string_view bytes, const DibLayout& layout, std::size_t pixelsAt) {
  const std::string_view stored = PartOf(bytes, pixelsAt, layout.PixelBytes());
  const std::vector<Colour> palette = ReadPalette(bytes, layout);
  DecodedImage image{layout.width, layout.height, {}};
  image.pixels.resize(static_cast<std::size_t>(layout.width) * static_cast<std::size_t>(layout.height));
  std::uint32_t* to = image.pixels.data();
  for (int y = 0; y < layout.height; ++y, to += layout.width) {
    const auto* row = reinterpret_cast<const unsigned char*>(stored.data()) + layout.RowStart(y);
    if (layout.bitsPerPixel <= 8) {
      ReadPaletteRow(row, layout, palette, to);
    } else if (layout.bitsPerPixel == 24) {
      BgrToPixels(row, layout.width, to);
    } else {
      for (int x = 0; x < layout.width; ++x, row += 4) to[x] = StoredColour(row);
    }
  }
  return image;
}

}  // namespace pelorium
