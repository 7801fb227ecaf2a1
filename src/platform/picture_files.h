// Pictures from .bmp, .png, .gif, .jpg and .ico files, and to .bmp and .png files.
#pragma once

#include <filesystem>

#include "graphics/picture.h"

namespace pelorium {

// The format follows the name's ending (.png or .bmp, any case; another ending is a FileError). The old file
// stays if the save fails. Overlays are not part of a picture.
void SavePicture(const Picture& picture, const std::filesystem::path& path);

// Resizes the picture to the file's size, at one unit a pixel, and fills it; what is transparent shows its
// background colour. A file that cannot be read leaves the picture as it was and raises FileError; so does
// one with a side above Picture::kMaxSide or with more than 32 million pixels.
void LoadPicture(Picture& picture, const std::filesystem::path& path);

}  // namespace pelorium
