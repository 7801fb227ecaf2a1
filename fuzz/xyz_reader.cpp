// Fuzz target of the readers of plain positions: separate faces and profile positions. Any bytes either load
// or end in a Fault; what was loaded as a whole comes back to the same text.
#include <cstdint>
#include <cstdlib>

#include "core/part_operations.h"
#include "interchange/xyz_files.h"
#include "round_trip.h"

using namespace pelorium;

namespace {

constexpr int kPart = 1;

// The faces are written from their own copies of the corners.
void ReadFaces(ModelStore& model, std::string_view text) {
  ReadSeparateFaces(model, kPart, text);
  SyncFaceCorners(model, kPart);
}
void WriteFaces(const ModelStore& model, TextWriter& out) { WriteSeparateFaces(model, kPart, out); }

using Read = void (*)(ModelStore&, std::string_view);
using Write = void (*)(const ModelStore&, TextWriter&);

void RoundTrip(Read read, Write write, std::string_view text) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  if (!Reads(read, model, text)) return;
  const std::string first = Written(write, model);
  if (!Reads(read, again, first) || Written(write, again) != first) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  RoundTrip(ReadFaces, WriteFaces, AsText(data, size));
  RoundTrip(ReadProfilePositions, WriteProfilePositions, AsText(data, size));
  return 0;
}
