// Fuzz target of the reader of a Part's readable text. Any bytes either load or end in a Fault with all
// numbers inside their tables; what was loaded can be written, and comes back to the same text.
#include <cstdint>
#include <cstdlib>

#include "interchange/text_part.h"
#include "round_trip.h"

using namespace pelorium;

namespace {

constexpr int kPart = 1;

void Read(ModelStore& model, std::string_view text) { ReadTextPart(model, kPart, text); }
void Write(const ModelStore& model, TextWriter& out) { WriteTextPart(model, kPart, out); }

bool IsWithin(int number, int lowest, int highest) { return number >= lowest && number <= highest; }

bool NumbersAreHeld(const ModelStore& model) {
  const PartHeader& part = model.Part(kPart);
  if (!IsWithin(part.maxpoints, 0, kMaxPoints) || !IsWithin(part.minpoints, 0, kMaxPoints)) return false;
  if (!IsWithin(part.maxfaces, 0, kMaxFaces) || !IsWithin(part.minfaces, 0, kMaxFaces)) return false;
  for (const FaceRec& face : FaceRange(model, kPart, 1, part.maxfaces)) {
    for (const int corner : {face.corner1pt, face.corner2pt, face.corner3pt}) {
      if (!IsWithin(corner, 1, kMaxPoints)) return false;
    }
    if (!IsWithin(face.group, 0, kMaxGroup)) return false;
  }
  return true;
}

}  // namespace

// The models are filled once and never again: a text that ends early leaves what the inputs before have left.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  const bool whole = Reads(Read, model, AsText(data, size));
  if (!NumbersAreHeld(model)) std::abort();
  if (!whole) return 0;
  const std::string first = Written(Write, model);
  if (!Reads(Read, again, first) || Written(Write, again) != first) std::abort();
  return 0;
}
