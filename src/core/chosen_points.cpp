// The chosen points.
#include "core/chosen_points.h"

namespace pelorium {

std::optional<int> OnlyChosenPoint(const ModelStore& model, const ChosenPoints& chosen) {
  std::optional<int> only;
  for (int number = chosen.first; number <= chosen.last; number += chosen.step) {
    if (model.PointMark(chosen.part, number) != 1) continue;
    if (only) return std::nullopt;
    only = number;
  }
  return only;
}

int MirrorPartner(int number, int distance, int lowest, int highest) {
  if (distance <= 0) return kNoPartner;
  const int partner = number + distance <= highest ? number + distance : number - distance;
  return partner < lowest ? kNoPartner : partner;
}

}  // namespace pelorium
