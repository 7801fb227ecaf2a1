// A stack of profiles as a Part: each profile a row of points, and the grid of faces between the rows.
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

// The faces of an open grid as BuildGridFaces makes them, behind those that the Part has, with all corners
// raised by `pointsBefore`. Corners end at point 23000 and faces at number 7699; maxfaces grows by the grid's
// count, up to 7700.
void AppendGridFaces(ModelStore& model, int part, int width, int rows, int pointsBefore);

}  // namespace pelorium
