// A file that is written and read back at once: what goes through it is rounded as files are, and stays
// behind for the user to look at.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"

namespace pelorium {

// Where a scratch file may go: `name` under the program's folder, or a file of this process in the system's
// temporary folder, which is taken away again.
struct ScratchPlaces {
  std::filesystem::path own, temporary;
};
ScratchPlaces ScratchPlacesFor(const std::filesystem::path& programFolder, std::string_view name);

// The bytes that came back, from the first place that took and gave them all. FileError when none did; a
// fault of `write` itself goes on, before any file is touched.
std::string ThroughScratchFile(const ScratchPlaces& places, const FileWriter& write);

}  // namespace pelorium
