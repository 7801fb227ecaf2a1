// The turns that bring one face level with the axes, its normal, and laying it flat at once.
#pragma once

#include "core/model_store.h"
#include "facetools/turn_points.h"

namespace pelorium {

inline constexpr int kFlatTurns = 3;

// Turn `step` (0, 1, 2) of flattening a face into a plane parallel to XY; all of them go about its corner c,
// and each is measured after the one before was made. First an edge (a-b of odd faces, b-c of even ones) is
// turned to the Y axis and levelled, then the rest of the face. Differences are rounded to 2 decimals on the
// way, so that the face lies flat to about a hundredth of a unit, and flatter when it is flattened again.
FaceTurn FlatTurn(const ModelStore& model, int part, int face, int step);

// Turns the edge b-c to the Y axis, about corner c.
FaceTurn EvenTurn(const ModelStore& model, int part, int face);

// Of the cross product of the edges a-b and b-c; 0, 0, 0 for a face without area.
Vec3 UnitNormal(const ModelStore& model, int part, int face);

// Lays the face true to size into the plane Z = 10, about its line of intersection with that plane; one
// without area stays.
void LayFace(ModelStore& model, int part, int face);

}  // namespace pelorium
