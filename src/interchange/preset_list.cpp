// The list of presets.
#include "interchange/preset_list.h"

namespace pelorium {

std::vector<std::string> ReadPresetList(ByteSource& file) {
  std::vector<std::string> names;
  LineReader reader(file);
  for (std::string_view line; names.size() < kMostPresets && reader.Next(line);) {
    names.emplace_back(line.substr(0, kLongestPreset));
  }
  return names;
}

}  // namespace pelorium
