// Fuzz target of the reader of the whole mapping. Any bytes load or end in a Fault with all counts inside
// their tables; what was loaded comes back to the same text.
#include <cstdint>

#include "interchange/texture_file.h"
#include "uv_lines.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  const bool whole = Reads(ReadTextureFile, model, AsText(data, size));
  for (int part = 0; part < kUserParts; ++part) {
    if (!CountsAreHeld(model, part)) std::abort();
  }
  if (!whole) return 0;
  const std::string first = Written(WriteTextureFile, model);
  if (!Reads(ReadTextureFile, again, first) || Written(WriteTextureFile, again) != first) std::abort();
  return 0;
}
