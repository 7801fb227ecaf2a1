// What can be measured on one face: places, lengths, area, angles, and the points that share its corners'
// places.
#pragma once

#include <array>
#include <vector>

#include "core/model_store.h"

namespace pelorium {

// Radians to degrees where angles are shown: less exact than 180 / pi. What is shown is what turns go by.
inline constexpr double kShownDegreesPerRadian = 180 / 3.141;

struct FaceCorners {
  Vec3 a, b, c;
};

// Where the corner points of a face lie, and where the face's own copies of them do. A corner that is no
// point of the table raises a Subscript fault.
FaceCorners CornersOf(const ModelStore& model, int part, int face);
FaceCorners CopiedCorners(const FaceRec& face);

Vec3 CentreOf(const FaceCorners& corners);

// Rounded to 2 decimals, as they are shown and worked with.
struct EdgeLengths {
  double ab = 0, bc = 0, ca = 0;
};
EdgeLengths LengthsOf(const FaceCorners& corners);

// Of the rounded lengths, rounded to 2 decimals: of a very small face both are 0. The area is Heron's;
// lengths that make no triangle have none.
double Perimeter(const EdgeLengths& lengths);
double Area(const EdgeLengths& lengths);

// Atn(rise / run), in radians; a quarter turn where run is 0, and 0 where both are.
double SlopeAngle(double rise, double run);

// The numbers of the points in use that lie exactly where each corner does, the corner's own left out; in
// order, at most `limit` a corner.
std::array<std::vector<int>, 3> MatchingPoints(const ModelStore& model, int part, int face,
                                               std::size_t limit);

}  // namespace pelorium
