// .png files through libpng.
#include <png.h>

#include "platform/image_formats.h"

namespace pelorium {

namespace {

constexpr std::size_t kPngSignature = 8, kPngChunkFrame = 12;  // a chunk's length, name and check sum

// Frees what libpng holds for an image however the reading or writing ends.
struct PngImage : png_image {
  PngImage() : png_image{} { version = PNG_IMAGE_VERSION; }
  ~PngImage() { png_image_free(this); }
  PngImage(const PngImage&) = delete;
  PngImage& operator=(const PngImage&) = delete;
};

// libpng is content when the last row is there; a file that ends before its end mark is cut all the same.
void CheckPngIsWhole(std::string_view bytes) {
  std::size_t at = kPngSignature;
  while (true) {
    const std::size_t next = at + kPngChunkFrame + Big32(bytes, at);
    if (next > bytes.size()) RefusePicture("the picture file is cut short");
    if (bytes.substr(at + 4, 4) == "IEND") return;
    at = next;
  }
}

// Packed data grows at most 1032 times, and a pixel takes at least a bit.
constexpr std::int64_t kPixelsPerByte = 1032 * 8;

}  // namespace

DecodedImage ReadPng(std::string_view bytes, Colour ground) {
  PngImage image;
  if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) RefusePicture(image.message);
  CheckSidesAgainst(image.width, image.height, bytes.size(), kPixelsPerByte);
  CheckPngIsWhole(bytes);
  image.format = PNG_FORMAT_RGB;
  DecodedImage decoded{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  std::vector<png_byte> rows(PNG_IMAGE_SIZE(image));
  const png_color background{static_cast<png_byte>(Red(ground)), static_cast<png_byte>(Green(ground)),
                             static_cast<png_byte>(Blue(ground))};
  if (png_image_finish_read(&image, &background, rows.data(), 0, nullptr) == 0) RefusePicture(image.message);
  decoded.pixels.reserve(rows.size() / 3);
  for (std::size_t i = 0; i < rows.size(); i += 3) {
    decoded.pixels.push_back(Rgb(rows[i], rows[i + 1], rows[i + 2]));
  }
  return decoded;
}

std::string PngBytes(const Picture& picture) {
  PngImage image;
  image.width = static_cast<png_uint_32>(picture.PixelWidth());
  image.height = static_cast<png_uint_32>(picture.PixelHeight());
  image.format = PNG_FORMAT_RGB;
  std::vector<png_byte> rows;
  rows.reserve(PNG_IMAGE_SIZE(image));
  for (const std::uint32_t pixel : picture.Pixels()) {
    rows.push_back(static_cast<png_byte>(Red(pixel)));
    rows.push_back(static_cast<png_byte>(Green(pixel)));
    rows.push_back(static_cast<png_byte>(Blue(pixel)));
  }
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::string bytes(size, '\0');
  if (png_image_write_to_memory(&image, bytes.data(), &size, 0, rows.data(), 0, nullptr) == 0) {
    RefusePicture(image.message);
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace pelorium
