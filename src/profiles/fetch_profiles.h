// Rings and sides of a Part as profiles.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// How a Part's points stand in rings.
struct RingGrid {
  int part = 0;
  int rowLength = 0;      // points from each ring to the next
  int pointsPerRing = 0;  // that are taken
};

// Layer `layer` (from 0) becomes profile `profile`.
void GetLayer(ModelStore& model, const RingGrid& rings, int layer, int profile);

// Layers firstLayer..lastLayer become profiles from `firstProfile` on, up to profile 36.
void GetLayers(ModelStore& model, const RingGrid& rings, int firstLayer, int lastLayer, int firstProfile);

// Sides firstSide..lastSide (from 1: the points of that number in each ring) become profiles from
// `firstProfile` on, up to profile 36. Each has one point more than the Part's `count` says, at most 37;
// where the Part has no further ring the last point repeats.
void GetSides(ModelStore& model, const RingGrid& rings, int firstSide, int lastSide, int firstProfile);

}  // namespace pelorium
