// Profiles of points that a Part has already.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Points of a Part at equal distances in its numbering.
struct PointWalk {
  int part = 0;
  int first = 1;   // number of the first point
  int stride = 1;  // from each to the next
  int points = 0;  // how many
};

// The points become those of the profile from 0 on, at most 37 and none outside 1..maxpoints. `count` becomes
// their number, at most 36, and the pen slot repeats the last. Returns how many there were.
int ProfileFromPoints(ModelStore& model, int profile, const PointWalk& walk);

}  // namespace pelorium
