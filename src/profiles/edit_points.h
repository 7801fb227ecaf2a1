// Edits of profile points one by one: swaps, mirrors, spacings, copies.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Points and profiles by their numbers, both ends in, held in 0..36. With a lowest above the highest an edit
// changes nothing, counts included.
struct LayerSpan {
  int first = 0, last = kMaxLayer;
};
struct ProfileSpan {
  int first = 0, last = kMaxProfile;
};

// A coordinate of a profile point.
using ProfileAxis = double ProfilePointRec::*;

void SwapAxes(ModelStore& model, int profile, LayerSpan points, ProfileAxis a, ProfileAxis b);
void InvertAxis(ModelStore& model, int profile, LayerSpan points, ProfileAxis axis);
void SetAxis(ModelStore& model, int profile, LayerSpan points, ProfileAxis axis, double value);

// The coordinate becomes the profile's number times `distance`, so that the profiles of the span stand at
// equal distances from each other.
void SpaceProfiles(ModelStore& model, ProfileSpan profiles, LayerSpan points, ProfileAxis axis,
                   double distance);

// Points to (0, 0, 0); the profile counts none.
void ErasePoints(ModelStore& model, int profile, LayerSpan points);

// The points and the count of `from` for every profile of the span.
void CopyProfile(ModelStore& model, int from, ProfileSpan profiles, LayerSpan points);

// Copies a point of a profile onto another.
void MatchPoints(ModelStore& model, int profile, int from, int to);

// Continues a profile behind point `count`, its hinge, with its own points backwards, one coordinate negated.
// Writes up to point 36, the first point again and again once all are mirrored; the count doubles, up to 36.
void MirrorProfile(ModelStore& model, int profile, ProfileAxis axis);
// The same for several; their counts become 36.
void MirrorProfiles(ModelStore& model, ProfileSpan profiles, ProfileAxis axis);

}  // namespace pelorium
