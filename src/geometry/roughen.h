// Random moves: of single points, and of whole rings.
#pragma once

#include "core/chosen_points.h"

namespace pelorium {

class RandomSeries;

// Every point of the range, chosen or not, moves by the whole part (cut downward) of a random share of
// `amounts`, drawn for X, Y and Z in turn. With amounts above 0 the Part drifts towards plus.
void Roughen(ModelStore& model, const ChosenPoints& range, const Vec3& amounts, RandomSeries& random);

struct RingShake {
  int ringWidth = 0;  // points; below 1 nothing happens
  double amount = 0;  // a ring moves by half of it at most, either way, on each axis
  double seed = 0;
  bool isBack = false;  // takes the same moves back
};

// Moves the chosen points of each ring together. The series starts anew from the seed, and three numbers are
// drawn for every ring from the Part's first on, so that a ring's move does not depend on what is chosen.
void ShakeRings(ModelStore& model, const ChosenPoints& chosen, const RingShake& shake, RandomSeries& random);

}  // namespace pelorium
