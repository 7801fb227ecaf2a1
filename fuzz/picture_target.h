// What the targets of all picture readers do. Any bytes either load or end in a FileError that leaves the
// picture as it was; what was loaded comes back pixel by pixel when it is saved and loaded again.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/picture_files.h"
#include "round_trip.h"

namespace pelorium {

// One file for each process, so that several of them may run side by side.
inline std::filesystem::path OwnFile(const std::string& name, const std::string& ending) {
  return std::filesystem::temp_directory_path() / (name + std::to_string(getpid()) + ending);
}

inline int RunPictureTarget(const std::string& ending, const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path given = OwnFile("pelorium_given", ending);
  static const std::filesystem::path saved = OwnFile("pelorium_saved", ".bmp");
  std::ofstream(given, std::ios::binary) << AsText(data, size);
  Picture picture(3, 2);
  try {
    LoadPicture(picture, given);
  } catch (const Fault& fault) {
    if (fault.kind() != FaultKind::FileError || picture.PixelWidth() != 3) std::abort();
    return 0;
  }
  SavePicture(picture, saved);  // a Fault here, or in what follows, is a find
  Picture again(1, 1);
  LoadPicture(again, saved);
  if (again.PixelWidth() != picture.PixelWidth() || again.Pixels() != picture.Pixels()) std::abort();
  return 0;
}

}  // namespace pelorium
