// Profile points as points of a Part.
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

// The same for the points 0..count of the profiles firstProfile..lastProfile, from point 1 of the Part on.
// Profiles without points are passed over; the Part's faces stay.
void ImportProfilePoints(ModelStore& model, int part, int firstProfile, int lastProfile);

}  // namespace pelorium
