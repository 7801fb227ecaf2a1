// Fuzz target of the reader of the list of presets. Any bytes are read; no name is longer than a file's, and
// the names come back as they are.
#include <cstdint>
#include <cstdlib>

#include "interchange/preset_list.h"
#include "round_trip.h"

using namespace pelorium;

namespace {

std::vector<std::string> NamesIn(std::string_view text) {
  StringSource source(text);
  return ReadPresetList(source);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string> names = NamesIn(AsText(data, size));
  if (names.size() > kMostPresets) std::abort();
  std::string text;
  for (const std::string& name : names) {
    if (name.size() > kLongestPreset) std::abort();
    text += name + "\r\n";
  }
  const bool hasMark = text.starts_with("\xEF\xBB\xBF");  // a second mark would be dropped, too
  if (!hasMark && NamesIn(text) != names) std::abort();
  return 0;
}
