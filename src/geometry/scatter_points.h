// Points for a tessellation: random clouds, rings, and those of profiles.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// `count` points (held in 3..22997) from number 1 on, at random whole units: X in 0..width, Y in 0..height,
// each moved by the offset, Z the offset's. Equal seeds give equal clouds. Returns the number of points.
struct CloudSettings {
  int part = 0;
  double seed = 0;
  double width = 630, height = 630;
  Vec3 offset;
};
int ScatterCloud(ModelStore& model, const CloudSettings& settings, int count);

// A ring of `sides` points at the corners of a regular shape, the first one step from the X axis. `radiusX`,
// `radiusY` in units. Point numbers go on from `first`. Returns the number behind the last; those that would
// pass 22997 are left out.
struct RingSettings {
  int part = 0;
  int sides = 6;
  double radiusX = 50, radiusY = 50;
  Vec3 centre;
};
int LayRing(ModelStore& model, const RingSettings& settings, int first);

// The points of the profiles `from`..`to`, with the one at the pen's place that ends each; profiles that are
// not drawn give none. Numbers from 1 on. Returns how many there are.
int PointsOfProfiles(ModelStore& model, int part, int from, int to);

// Marks point 1 and each `step`-th behind it, of points 1..last, and only those.
void MarkOnlyEvery(ModelStore& model, int part, int last, int step);

}  // namespace pelorium
