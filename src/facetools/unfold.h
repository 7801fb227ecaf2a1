// Laying the triangles of a mesh flat, pair by pair: the steps that unfolding a strip is made of. Faces f and
// f + 1 are the two triangles of one quad, and each has points of its own (the Part is disjoined).
#pragma once

#include "core/model_store.h"
#include "facetools/face_measures.h"
#include "facetools/turn_points.h"

namespace pelorium {

struct FlatPlace {
  double x = 0, y = 0;
};

// Corner a lies at 0, 0.
struct FlatTriangle {
  FlatPlace b, c;
};

// Finds the triangle by sweeping corner c about corner a in steps of 0.1 degree from 0 to 199.9 at most,
// until c is at least `ca` away from b. Corner c lies `bc` from a: the triangle has its true sides, but a and
// b are exchanged, which is how the pieces of a net meet. Sides that make no triangle leave c on the X axis.
FlatTriangle SweepTriangle(const EdgeLengths& lengths);

// One triangle as it was laid: its first corner in X and Y, and the others from there.
struct LaidTriangle {
  FlatPlace base;
  FlatTriangle shape;
};

struct LaidPair {
  LaidTriangle first, second;
};

// The flat shapes of face f at the origin and, with `pair`, of face f + 1, whose corner b comes to the
// origin, on top of corner a of the first. Lengths are those of the faces' copies of the corners. A face past
// the table raises a Subscript fault.
LaidPair FlattenPair(const ModelStore& model, int part, int face, bool pair, const Vec3& origin);

// Puts the corner points of a face where the laid triangle's are, at the elevation Z.
void PlaceTriangle(ModelStore& model, int part, int face, const LaidTriangle& laid, double elevation);

// Degrees between the line from q to p and the Y axis, -90 to 90, rounded to 2 decimals.
double EdgeAngle(const Vec3& p, const Vec3& q);

// The angles of the edges that a pair has in common: a-c of face f, c-b of face f + 1.
struct PairAngles {
  double first = 0, second = 0;
};
PairAngles MeasurePair(const ModelStore& model, int part, int face);

// Degrees that turn a pair onto the edge b-c of the pair before it, face - 2.
double AngleToPairBefore(const ModelStore& model, int part, int face);

// The mean of the six corners of a pair.
Vec3 CentreOfPair(const ModelStore& model, int part, int face);

// Moves all marked points in use in X and Y, so that corner a of the face comes to the origin.
void MoveToOrigin(ModelStore& model, int part, int face, const Vec3& origin);

}  // namespace pelorium
