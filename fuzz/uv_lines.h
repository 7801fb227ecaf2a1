// What the targets of the readers of texture coordinates share: a mapping and a model out of the same bytes,
// with all counts inside their tables.
#pragma once

#include <cstdlib>

#include "interchange/uv_lines.h"
#include "round_trip.h"

namespace pelorium {

inline bool CountsAreHeld(const ModelStore& model, int part) {
  const PartHeader& p = model.Part(part);
  const auto isWithin = [](int count, int most) { return count >= 0 && count <= most; };
  return isWithin(p.vtcount, kMaxPoints) && isWithin(p.vtfacecount, kMaxFaces) &&
         isWithin(p.maxpoints, kMaxPoints) && isWithin(p.maxfaces, kMaxFaces);
}

// `readMapping` and `readModel` take (model, lines).
template <typename Mapping, typename Model>
void ReadBothWays(ModelStore& model, int part, const UvLines& lines, Mapping readMapping, Model readModel) {
  for (const bool asModel : {false, true}) {
    try {
      asModel ? readModel(model, lines) : readMapping(model, lines);
    } catch (const Fault&) {
    }
    if (!CountsAreHeld(model, part)) std::abort();
  }
}

}  // namespace pelorium
