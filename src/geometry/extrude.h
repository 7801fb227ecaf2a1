// Replays a profile once per layer along Y, bent, moved, scaled and turned by the settings that the profile
// carries and by other profiles used as effectors.
//
// A layer (J) is one ring of points; a section (I) is a point of the ring. The settings of layer J stand in
// point J of the profile, those of section I in point I.
#pragma once

#include "core/model_store.h"

namespace pelorium {

struct ExtrudeSettings {
  int profile = 0;
  int part = 0;
  int firstSection = 0, lastSection = 0;  // points of the profile that make the ring
  bool additive = false;  // every term adds to the points as they stand; the drawn profile is not added
  Vec3 origin;            // pivot of the general turns
};

// Points in one ring, and the rings that will be made: the profile's layerCount + 1.
int RingWidth(const ExtrudeSettings& settings);
int RingsOf(const ModelStore& model, const ExtrudeSettings& settings);

// The generator needs at least 4 points and the pen's slot: raises the profile's count to 4. True when it
// did.
bool RaiseCountForExtrude(ModelStore& model, int profile);

// Lays the points ring by ring from number 1 and switches them on; neighbours are not welded. Returns the
// number behind the last point laid. Counts and faces stay. A profile or point number outside the tables, as
// files may hold, raises a Subscript fault and leaves the points laid so far.
int LayExtrudedPoints(ModelStore& model, const ExtrudeSettings& settings);

// maxpoints after the points were laid up to below `next`: without the last ring, but never fewer than the
// `rows` that are meshed. minpoints becomes 1.
void CountExtrudedPoints(ModelStore& model, const ExtrudeSettings& settings, int next, int rows);

// Gives the layers 0..sections the spin that makes one full turn over `sections`. 1 section has no step to
// divide the turn by: a DivisionByZero fault, and nothing is written.
void SpinLayersEvenly(ModelStore& model, int profile, int sections);

// All extrude settings of a profile back to their defaults. The drawn points and their count stay.
void ClearExtrudeSettings(ModelStore& model, int profile);

}  // namespace pelorium
