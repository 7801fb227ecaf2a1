// Profile points as points of a Part.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Copies the points 0..count of the profiles firstProfile..lastProfile into the Part, one behind the other
// from point 1, and switches them on. Profiles without points are passed over. The Part's points end behind
// the last one copied; its faces stay.
void ImportProfilePoints(ModelStore& model, int part, int firstProfile, int lastProfile);

}  // namespace pelorium
