// Fuzz target of the project reader. Any bytes either load or end in a Fault. What was loaded can be written,
// and what is written comes back to the same text when it is read and written again.
#include <cstdint>
#include <cstdlib>

#include "core/project_file.h"
#include "round_trip.h"

using namespace pelorium;

// The models are filled once and never again: what a whole file leaves must not depend on what stood there
// before.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  if (!Reads(ReadProject, model, AsText(data, size))) return 0;
  const std::string first = Written(WriteProject, model);
  if (!Reads(ReadProject, again, first) || Written(WriteProject, again) != first) std::abort();
  return 0;
}
