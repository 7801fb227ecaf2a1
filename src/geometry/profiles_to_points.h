// A stack of profiles as a Part: each profile becomes a row of points.
#pragma once

#include <algorithm>

#include "core/model_store.h"

namespace pelorium {

// Points firstPoint..lastPoint of the profiles firstProfile..lastProfile. Upper numbers below the lower ones
// choose nothing.
struct ProfileStack {
  int firstProfile = 0, lastProfile = 0;
  int firstPoint = 0, lastPoint = 0;

  int Rows() const { return std::max(0, lastProfile - firstProfile + 1); }
  int Width() const { return std::max(0, lastPoint - firstPoint + 1); }
};

// Lays the points behind point `after` of the Part, row by row, and switches them on. Ends early at point
// 23000. Sets maxpoints to the last one laid and minpoints to 1.
void LayProfiles(ModelStore& model, int part, const ProfileStack& stack, int after);

}  // namespace pelorium
