// Fuzz target of the profile file's reader. Any bytes either load or end in a Fault, and the counts stay in
// their table. What a whole file loaded can be written, and comes back without loss by the reader of the
// project file's block.
#include <cstdint>
#include <cstdlib>

#include "base/item_reader.h"
#include "core/profile_file.h"
#include "round_trip.h"

using namespace pelorium;

namespace {

bool CountsAreHeld(const ModelStore& model) {
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    const int count = model.Profile(profile).count;
    if (count < 0 || count > kMaxLayer) return false;
  }
  return true;
}

}  // namespace

// The models are filled once and never again: they keep what the inputs before have left.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  const bool whole = Reads(ReadProfileFile, model, AsText(data, size));
  if (!CountsAreHeld(model)) std::abort();
  if (!whole) return 0;
  const std::string first = Written(WriteProfiles, model);
  ItemReader items(first);
  ReadProfiles(again, items, ProfileItems::All);  // a Fault here is a find
  if (Written(WriteProfiles, again) != first) std::abort();
  return 0;
}
