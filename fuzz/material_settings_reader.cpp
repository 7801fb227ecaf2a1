// Fuzz target of the reader of the file of all materials. Any bytes either load or end in a Fault; what was
// loaded comes back to the same text.
#include <cstdint>
#include <cstdlib>

#include "interchange/material_settings.h"
#include "round_trip.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  if (!Reads(ReadMaterialSettings, model, AsText(data, size))) return 0;
  const std::string first = Written(WriteMaterialSettings, model);
  if (!Reads(ReadMaterialSettings, again, first) || Written(WriteMaterialSettings, again) != first)
    std::abort();
  return 0;
}
