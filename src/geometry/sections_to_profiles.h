// Profiles from the rings of a generated Part.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Section s of the Part (from 0), the points at column s of its rows of `width` points, becomes profile s, up
// to profile 36; `kept`, the profile the Part was made from, is passed over. A profile takes at most 37
// points and none past maxpoints; its `count` is the number of points, at most 36, and its pen slot repeats
// the last.
void ProfilesFromSections(ModelStore& model, int part, int width, int rows, int kept);

}  // namespace pelorium
