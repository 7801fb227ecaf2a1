// The list of presets: a name a line, empty lines included.
#pragma once

#include <string>
#include <vector>

#include "base/line_reader.h"

namespace pelorium {

inline constexpr std::size_t kMostPresets = 10000;
inline constexpr std::size_t kLongestPreset = 255;  // no file has a longer name

// In the order of the file. More names than kMostPresets are left out, longer ones are cut.
std::vector<std::string> ReadPresetList(ByteSource& file);

}  // namespace pelorium
