// The kinds of picture files, each from its bytes and two of them to bytes. A file that is damaged, cut, too
// large or of a kind that is not read raises FileError. What is transparent shows the ground.
#pragma once

#include <string>
#include <string_view>

#include "graphics/picture.h"
#include "platform/image_bytes.h"

namespace pelorium {

// 1, 4, 8, 24 or 32 bits a pixel (the fourth byte has no meaning), uncompressed, rows up or down.
DecodedImage ReadBmp(std::string_view bytes);
// 24 bits a pixel, 54 bytes before them.
std::string BmpBytes(const Picture& picture);

DecodedImage ReadPng(std::string_view bytes, Colour ground);
std::string PngBytes(const Picture& picture);

// The first frame, on a ground of the whole screen's size.
DecodedImage ReadGif(std::string_view bytes, Colour ground);

DecodedImage ReadJpeg(std::string_view bytes);

// The largest image, and of equal ones that with the most colours.
DecodedImage ReadIco(std::string_view bytes, Colour ground);

}  // namespace pelorium
