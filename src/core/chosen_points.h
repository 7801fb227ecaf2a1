// The points that edits work on: those of a range that are marked.
#pragma once

#include <optional>
#include <utility>

#include "core/axes.h"
#include "core/model_store.h"

namespace pelorium {

// Points `first`, `first` + `step` .. `last` of one Part, those with PointMark 1. Numbers start at 1, the
// step is at least 1; a last below the first chooses nothing.
struct ChosenPoints {
  int part = 0;
  int first = 1, last = 0;
  int step = 1;
};

// act(number, point) for each of them, in order. A range outside the table raises a Subscript fault.
template <typename Act>
void ForEachChosen(ModelStore& model, const ChosenPoints& chosen, Act act) {
  for (int number = chosen.first; number <= chosen.last; number += chosen.step) {
    if (std::as_const(model).PointMark(chosen.part, number) == 1)
      act(number, model.Points(chosen.part, number));
  }
}

// Their number when there is exactly one.
std::optional<int> OnlyChosenPoint(const ModelStore& model, const ChosenPoints& chosen);

inline constexpr int kNoPartner = -1;

// The mirror image of point `number` in models of two like halves: `distance` further on, or as far back
// where that would pass `highest`. kNoPartner below `lowest`, or when the distance is 0.
int MirrorPartner(int number, int distance, int lowest, int highest);

// Puts `partner` to the mirror image of `point`: the coordinate of `axis` flips about the pivot.
template <typename Rec>
void PlaceMirrored(Rec& partner, const Rec& point, Axis axis, const Vec3& pivot) {
  CopyPosition(partner, point);
  Coordinate(partner, axis) = 2 * Coordinate(pivot, axis) - Coordinate(point, axis);
}

}  // namespace pelorium
