// .ico files: the largest of their images, a bitmap with a mask or a .png file.
#include <tuple>

#include "platform/dib_rows.h"
#include "platform/image_formats.h"

namespace pelorium {

namespace {

constexpr std::size_t kHeader = 6, kEntry = 16;

struct Entry {
  std::uint32_t width, height, bits, size, at;  // a side of 0 is 256
  auto Rank() const { return std::tuple(width * height, bits); }
};

Entry EntryAt(std::string_view bytes, std::size_t at) {
  const auto side = [&](std::size_t place) { return (ByteAt(bytes, place) + 255) % 256 + 1; };
  return {side(at), side(at + 1), Little16(bytes, at + 6), Little32(bytes, at + 8), Little32(bytes, at + 12)};
}

int Blended(int over, int under, int alpha) { return (over * alpha + under * (255 - alpha) + 127) / 255; }

// Where the mask is set the ground shows.
void ShowGroundByMask(DecodedImage& image, std::string_view mask, const DibLayout& layout, Colour ground) {
  DibLayout bits = layout;
  bits.bitsPerPixel = 1;
  const std::string_view rows = PartOf(mask, 0, bits.PixelBytes());
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const auto byte = static_cast<unsigned char>(rows[bits.RowStart(y) + static_cast<std::size_t>(x / 8)]);
      if ((byte >> (7 - x % 8) & 1) == 0) continue;
      image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                   static_cast<std::size_t>(x)] = ground;
    }
  }
}

// The fourth byte of 32 bits says how much of the pixel covers the ground. False when all are 0: then the
// mask tells.
bool ShowGroundByAlpha(DecodedImage& image, std::string_view stored, const DibLayout& layout, Colour ground) {
  const auto alphaAt = [&](int x, int y) {
    return static_cast<unsigned char>(stored[layout.RowStart(y) + static_cast<std::size_t>(x) * 4 + 3]);
  };
  bool hasAlpha = false;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) hasAlpha = hasAlpha || alphaAt(x, y) != 0;
  }
  for (int y = 0; y < image.height && hasAlpha; ++y) {
    for (int x = 0; x < image.width; ++x) {
      std::uint32_t& pixel =
          image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                       static_cast<std::size_t>(x)];
      const int alpha = alphaAt(x, y);
      pixel = Rgb(Blended(Red(pixel), Red(ground), alpha), Blended(Green(pixel), Green(ground), alpha),
                  Blended(Blue(pixel), Blue(ground), alpha));
    }
  }
  return hasAlpha;
}

}  // namespace

DecodedImage ReadIco(std::string_view bytes, Colour ground) {
  const std::size_t count = Little16(bytes, 4);
  if (Little32(bytes, 0) != 0x00010000 || count == 0) RefusePicture("no .ico file");
  Entry best = EntryAt(bytes, kHeader);
  for (std::size_t i = 1; i < count; ++i) {
    const Entry entry = EntryAt(bytes, kHeader + i * kEntry);
    if (entry.Rank() > best.Rank()) best = entry;
  }
  const std::string_view image = PartOf(bytes, best.at, best.size);
  if (image.starts_with("\x89PNG")) return ReadPng(image, ground);
  const DibLayout layout = ReadDibLayout(image, 0, true);
  DecodedImage decoded = ReadDibRows(image, layout, layout.infoEnd);
  if (layout.bitsPerPixel == 32 && ShowGroundByAlpha(decoded, image.substr(layout.infoEnd), layout, ground)) {
    return decoded;
  }
  ShowGroundByMask(decoded, image.substr(layout.infoEnd + layout.PixelBytes()), layout, ground);
  return decoded;
}

}  // namespace pelorium
