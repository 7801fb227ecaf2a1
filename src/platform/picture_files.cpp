// The kinds of picture files by their endings.
#include "platform/picture_files.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

#include "base/files.h"
#include "platform/image_formats.h"

namespace pelorium {

namespace {

std::string LowerEnding(const std::filesystem::path& path) {
  std::string ending = path.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return ending;
}

struct Format {
  const char* ending;
  DecodedImage (*read)(std::string_view bytes, Colour ground);
  std::string (*write)(const Picture& picture);  // null for what is read only
};

constexpr Format kFormats[] = {
    {".bmp", [](std::string_view bytes, Colour) { return ReadBmp(bytes); }, BmpBytes},
    {".png", ReadPng, PngBytes},
    {".gif", ReadGif, nullptr},
    {".jpg", [](std::string_view bytes, Colour) { return ReadJpeg(bytes); }, nullptr},
    {".jpeg", [](std::string_view bytes, Colour) { return ReadJpeg(bytes); }, nullptr},
    {".ico", ReadIco, nullptr},
};

const Format& FormatOf(const std::filesystem::path& path, bool toWrite) {
  const std::string ending = LowerEnding(path);
  for (const Format& format : kFormats) {
    if (ending == format.ending && (format.write != nullptr || !toWrite)) return format;
  }
  throw Fault(FaultKind::FileError, path.string() + ": the name of a picture ends in .png or .bmp" +
                                        (toWrite ? "" : ", .gif, .jpg or .ico"));
}

}  // namespace

void SavePicture(const Picture& picture, const std::filesystem::path& path) {
  const std::string bytes = FormatOf(path, true).write(picture);
  ReplaceFile(path, [&bytes](TextWriter& writer) { writer.Text(bytes); });
}

void LoadPicture(Picture& picture, const std::filesystem::path& path) {
  const Format& format = FormatOf(path, false);
  DecodedImage image = format.read(ReadFile(path), picture.backColour);
  picture.TakePixels(image.width, image.height, std::move(image.pixels));
  picture.SetScale(image.width, image.height);
}

}  // namespace pelorium
