// What the targets of readers of meshes share.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "base/line_reader.h"
#include "core/part_operations.h"
#include "round_trip.h"

namespace pelorium {

inline constexpr int kPart = 1;

inline bool IsHeld(const ModelStore& model) {
  const PartHeader& part = model.Part(kPart);
  return part.maxpoints >= 0 && part.maxpoints <= kMaxPoints && part.maxfaces >= 0 &&
         part.maxfaces <= kMaxFaces;
}

// Any bytes either load or end in a fault, with counts that the tables hold; either way the corners can be
// followed. A Part that was loaded is written by `write` and read again by `readAgain`, and comes back to the
// same text, where `comesBack(text)` says that the format keeps all of it. The models are filled once and
// never again: a text that ends early leaves what the inputs before have left.
template <typename ComesBack>
void TestMeshReader(void (*read)(ModelStore&, std::string_view),
                    void (*write)(const ModelStore&, TextWriter&),
                    void (*readAgain)(ModelStore&, std::string_view), ComesBack comesBack,
                    std::string_view text) {
  static ModelStore& model = *new ModelStore;
  static ModelStore& again = *new ModelStore;
  const bool isWhole = Reads(read, model, text);
  if (!IsHeld(model)) std::abort();
  SyncFaceCorners(model, kPart);
  if (!isWhole) return;
  const std::string first = Written(write, model);
  if (!comesBack(first)) return;
  if (!Reads(readAgain, again, first) || Written(write, again) != first) std::abort();
}

}  // namespace pelorium
