// Faces between scattered points: a tessellation in the X-Y plane.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Points that a Part can hold below the three corners of the enclosing triangle.
inline constexpr int kMostTessellated = kMaxPoints - 3;

// When a point inside the circle of a face is taken into it. But for the first the result may have gaps and
// folds: faces that would span a step in height are left out.
enum class ElevationRule {
  None,     // always
  Range,    // when its Z lies within lowest..highest
  Radius,   // when it lies no farther above or below the face's middle than the circle's radius
  Distance  // ... than `distance`; the corners of the enclosing triangle count like any others
};

struct TessellationSettings {
  int part = 0;
  ElevationRule rule = ElevationRule::None;
  double lowest = 0, highest = 0;
  double distance = 0;
};

// Makes faces 1.. of the Part from its marked points among 1..`points` (held in 0..kMostTessellated) and
// returns their number; only corners are written. Unmarked points count to the extent. Points `points` + 1 to
// + 3 become the corners of an enclosing triangle, with 6 decimals; without points nothing is written.
//
// Bowyer (1981), Watson (1981). The order of the faces is that of a plain list of triangles: a triangle whose
// circle holds the new point gives its place to the last one, the new triangles stand at the end. A point
// whose new triangles would pass 7700 ends the run before it. Takes some milliseconds for the 3849 points
// whose triangles fit into the table.
int Triangulate(ModelStore& model, const TessellationSettings& settings, int points);

}  // namespace pelorium
