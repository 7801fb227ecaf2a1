// The points that edits work on: those of a range that are marked.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Points `first`, `first` + `step` .. `last` of one Part, those with PointMark 1. Numbers start at 1, the step
// is at least 1; a last below the first chooses nothing.
struct ChosenPoints {
  int part = 0;
  int first = 1, last = 0;
  int step = 1;
};

// act(number, point) for each of them, in order. A range outside the table raises a Subscript fault.
template <typename Act>
void ForEachChosen(ModelStore& model, const ChosenPoints& chosen, Act act) {
  for (int number = chosen.first; number <= chosen.last; number += chosen.step) {
    if (model.PointMark(chosen.part, number) == 1) act(number, model.Points(chosen.part, number));
  }
}

}  // namespace pelorium
