// .bmp files.
#include "graphics/bgr_rows.h"
#include "platform/dib_rows.h"
#include "platform/image_formats.h"

namespace pelorium {

namespace {

constexpr std::size_t kFileHeader = 14, kInfoHeader = 40;

void AppendLittle(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::string HeaderBytes(const Picture& picture, std::size_t pixelBytes) {
  const auto headers = static_cast<std::uint32_t>(kFileHeader + kInfoHeader);
  std::string bytes = "BM";
  AppendLittle(bytes, headers + static_cast<std::uint32_t>(pixelBytes), 4);
  AppendLittle(bytes, 0, 4);
  AppendLittle(bytes, headers, 4);
  AppendLittle(bytes, static_cast<std::uint32_t>(kInfoHeader), 4);
  AppendLittle(bytes, static_cast<std::uint32_t>(picture.PixelWidth()), 4);
  AppendLittle(bytes, static_cast<std::uint32_t>(picture.PixelHeight()), 4);
  AppendLittle(bytes, 1, 2);   // planes
  AppendLittle(bytes, 24, 2);  // bits a pixel
  AppendLittle(bytes, 0, 4);   // uncompressed
  AppendLittle(bytes, static_cast<std::uint32_t>(pixelBytes), 4);
  AppendLittle(bytes, 2835, 4);  // pixels a metre: 72 an inch
  AppendLittle(bytes, 2835, 4);
  AppendLittle(bytes, 0, 4);  // no palette
  AppendLittle(bytes, 0, 4);
  return bytes;
}

}  // namespace

DecodedImage ReadBmp(std::string_view bytes) {
  if (bytes.substr(0, 2) != "BM") RefusePicture("no .bmp file");
  const DibLayout layout = ReadDibLayout(bytes, kFileHeader);
  const std::size_t pixelsAt = Little32(bytes, 10);
  if (pixelsAt < layout.infoEnd) RefusePicture("a .bmp file whose pixels begin within its header");
  return ReadDibRows(bytes, layout, pixelsAt);
}

std::string BmpBytes(const Picture& picture) {
  const int width = picture.PixelWidth(), height = picture.PixelHeight();
  const std::size_t stride = DibLayout::RowBytes(width, 24);
  std::string bytes = HeaderBytes(picture, stride * static_cast<std::size_t>(height));
  const std::size_t start = bytes.size();
  bytes.resize(start + stride * static_cast<std::size_t>(height));
  const std::uint32_t* pixel = picture.Pixels().data();
  for (int y = height - 1; y >= 0; --y) {
    char* to = bytes.data() + start + stride * static_cast<std::size_t>(y);
    PixelsToBgr(pixel, width, reinterpret_cast<std::uint8_t*>(to));
    pixel += width;
  }
  return bytes;
}

}  // namespace pelorium
