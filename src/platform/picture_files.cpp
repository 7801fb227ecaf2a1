// Pictures from and to .png files through libpng, and .bmp files by hand: written with 24 bits a pixel, read
// with 8 (a palette), 24 or 32 bits, uncompressed. Every size that a file claims is held against the file's
// own length before memory is taken for it.
#include "platform/picture_files.h"

#include <png.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/fault.h"
#include "base/files.h"

namespace pelorium {

namespace {

struct Bitmap {
  int width = 0, height = 0;
  std::vector<std::uint32_t> pixels;  // 0x00BBGGRR, row by row from the top
};

constexpr std::size_t kBmpFileHeader = 14, kBmpInfoHeader = 40;
constexpr std::size_t kPngSignature = 8, kPngChunkFrame = 12;  // a chunk's length, name and check sum

[[noreturn]] void Refuse(const char* why) { throw Fault(FaultKind::FileError, why); }

std::string LowerEnding(const std::filesystem::path& path) {
  std::string ending = path.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return ending;
}

std::size_t Pixels(int width, int height) {
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

void CheckSides(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1 || width > Picture::kMaxSide || height > Picture::kMaxSide) {
    Refuse("a picture's side is outside 1 to 16384 pixels");
  }
}

// The bytes of a file as numbers; what lies outside the file is refused.
std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
  if (at >= bytes.size()) Refuse("the picture file is cut short");
  return static_cast<unsigned char>(bytes[at]);
}

std::uint32_t Little16(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8;
}

std::uint32_t Little32(std::string_view bytes, std::size_t at) {
  return Little16(bytes, at) | Little16(bytes, at + 2) << 16;
}

std::uint32_t Big32(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) << 24 | ByteAt(bytes, at + 1) << 16 | ByteAt(bytes, at + 2) << 8 |
         ByteAt(bytes, at + 3);
}

// --- .bmp
// ---------------------------------------------------------------------------------------------------------

struct BmpHeader {
  std::size_t pixelsAt = 0, paletteAt = 0, paletteSize = 0;
  int width = 0, height = 0, bitsPerPixel = 0;
  bool topDown = false;
  std::size_t Stride() const { return BmpStride(width, bitsPerPixel); }

  // Rows are filled up to whole groups of four bytes.
  static std::size_t BmpStride(int width, int bitsPerPixel) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 31) / 32 * 4;
  }
};

BmpHeader ReadBmpHeader(std::string_view bytes) {
  if (bytes.substr(0, 2) != "BM") Refuse("no .bmp file");
  const std::size_t infoSize = Little32(bytes, kBmpFileHeader);
  if (infoSize < kBmpInfoHeader || Little32(bytes, 30) != 0) Refuse("a kind of .bmp file that is not read");

  BmpHeader header;
  header.pixelsAt = Little32(bytes, 10);
  const std::int64_t height = static_cast<std::int32_t>(Little32(bytes, 22));
  header.topDown = height < 0;
  CheckSides(static_cast<std::int32_t>(Little32(bytes, 18)), std::llabs(height));
  header.width = static_cast<std::int32_t>(Little32(bytes, 18));
  header.height = static_cast<int>(std::llabs(height));
  header.bitsPerPixel = static_cast<int>(Little16(bytes, 28));
  if (header.bitsPerPixel == 8) {
    const std::uint32_t used = Little32(bytes, 46);
    header.paletteAt = kBmpFileHeader + infoSize;
    header.paletteSize = used == 0 ? 256 : used;
    if (header.paletteSize > 256) Refuse("a .bmp palette of more than 256 colours");
  } else if (header.bitsPerPixel != 24 && header.bitsPerPixel != 32) {
    Refuse("a .bmp file of other than 8, 24 or 32 bits a pixel");
  }
  if (header.pixelsAt < kBmpFileHeader + infoSize + header.paletteSize * 4 ||
      header.pixelsAt + header.Stride() * static_cast<std::size_t>(header.height) > bytes.size()) {
    Refuse("the picture file is cut short");
  }
  return header;
}

// Blue, green, red in the file.
std::uint32_t ColourAt(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) << 16 | ByteAt(bytes, at + 1) << 8 | ByteAt(bytes, at + 2);
}

// A number behind the palette's end is black.
std::uint32_t PixelAt(std::string_view bytes, const BmpHeader& header, std::size_t row, std::size_t x) {
  if (header.bitsPerPixel != 8) {
    return ColourAt(bytes, row + x * static_cast<std::size_t>(header.bitsPerPixel / 8));
  }
  const std::size_t number = ByteAt(bytes, row + x);
  return number < header.paletteSize ? ColourAt(bytes, header.paletteAt + number * 4) : 0;
}

Bitmap ReadBmp(std::string_view bytes) {
  const BmpHeader header = ReadBmpHeader(bytes);
  Bitmap bitmap{header.width, header.height, {}};
  bitmap.pixels.reserve(Pixels(header.width, header.height));
  for (int y = 0; y < header.height; ++y) {
    const auto storedRow = static_cast<std::size_t>(header.topDown ? y : header.height - 1 - y);
    const std::size_t row = header.pixelsAt + storedRow * header.Stride();
    for (int x = 0; x < header.width; ++x) {
      bitmap.pixels.push_back(PixelAt(bytes, header, row, static_cast<std::size_t>(x)));
    }
  }
  return bitmap;
}

void AppendLittle(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::string BmpHeaderBytes(const Picture& picture, std::size_t pixelBytes) {
  const auto headers = static_cast<std::uint32_t>(kBmpFileHeader + kBmpInfoHeader);
  std::string bytes = "BM";
  AppendLittle(bytes, headers + static_cast<std::uint32_t>(pixelBytes), 4);
  AppendLittle(bytes, 0, 4);
  AppendLittle(bytes, headers, 4);
  AppendLittle(bytes, static_cast<std::uint32_t>(kBmpInfoHeader), 4);
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

std::string BmpBytes(const Picture& picture) {
  const auto width = static_cast<std::size_t>(picture.PixelWidth());
  const std::size_t stride = BmpHeader::BmpStride(picture.PixelWidth(), 24);
  const std::size_t pixelBytes = stride * static_cast<std::size_t>(picture.PixelHeight());
  std::string bytes = BmpHeaderBytes(picture, pixelBytes);
  bytes.reserve(bytes.size() + pixelBytes);
  const std::vector<std::uint32_t>& pixels = picture.Pixels();
  for (auto y = static_cast<std::size_t>(picture.PixelHeight()); y-- > 0;) {
    for (std::size_t x = 0; x < width; ++x) {
      const std::uint32_t pixel = pixels[y * width + x];
      bytes += static_cast<char>(pixel >> 16 & 0xFF);
      bytes += static_cast<char>(pixel >> 8 & 0xFF);
      bytes += static_cast<char>(pixel & 0xFF);
    }
    bytes.append(stride - width * 3, '\0');
  }
  return bytes;
}

// --- .png
// ---------------------------------------------------------------------------------------------------------

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
    if (next > bytes.size()) Refuse("the picture file is cut short");
    if (bytes.substr(at + 4, 4) == "IEND") return;
    at = next;
  }
}

// Packed data grows at most 1032 times, and a pixel takes at least a bit: more pixels than that are a lie.
void CheckPngSize(const PngImage& image, std::size_t fileSize) {
  CheckSides(image.width, image.height);
  if (static_cast<std::size_t>(image.width) * image.height / 8 > fileSize * 1032) {
    Refuse("the picture file is too short for its size");
  }
}

// What is transparent in the file shows the picture's ground.
Bitmap ReadPng(std::string_view bytes, Colour ground) {
  PngImage image;
  if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) Refuse(image.message);
  CheckPngSize(image, bytes.size());
  CheckPngIsWhole(bytes);
  image.format = PNG_FORMAT_RGB;
  Bitmap bitmap{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  std::vector<png_byte> rows(PNG_IMAGE_SIZE(image));
  const png_color background{static_cast<png_byte>(Red(ground)), static_cast<png_byte>(Green(ground)),
                             static_cast<png_byte>(Blue(ground))};
  if (png_image_finish_read(&image, &background, rows.data(), 0, nullptr) == 0) Refuse(image.message);
  bitmap.pixels.reserve(rows.size() / 3);
  for (std::size_t i = 0; i < rows.size(); i += 3) {
    bitmap.pixels.push_back(Rgb(rows[i], rows[i + 1], rows[i + 2]));
  }
  return bitmap;
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
    Refuse(image.message);
  }
  bytes.resize(size);
  return bytes;
}

[[noreturn]] void RefuseEnding(const std::filesystem::path& path) {
  throw Fault(FaultKind::FileError, path.string() + ": the name of a picture ends in .png or .bmp");
}

}  // namespace

void SavePicture(const Picture& picture, const std::filesystem::path& path) {
  const std::string ending = LowerEnding(path);
  if (ending != ".png" && ending != ".bmp") RefuseEnding(path);
  const std::string bytes = ending == ".png" ? PngBytes(picture) : BmpBytes(picture);
  ReplaceFile(path, [&bytes](TextWriter& writer) { writer.Text(bytes); });
}

void LoadPicture(Picture& picture, const std::filesystem::path& path) {
  const std::string ending = LowerEnding(path);
  if (ending != ".png" && ending != ".bmp") RefuseEnding(path);
  const std::string bytes = ReadFile(path);
  const Bitmap bitmap = ending == ".png" ? ReadPng(bytes, picture.backColour) : ReadBmp(bytes);
  picture.Resize(bitmap.width, bitmap.height);
  picture.SetPixels(bitmap.pixels);
}

}  // namespace pelorium
