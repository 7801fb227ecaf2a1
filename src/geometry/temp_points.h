// A temporary store of one Part's points.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Keeps positions and marks of all points of the Part, in place of what was kept before.
void SavePoints(ModelStore& model, int part);

// Puts them back, from point 1 on, and the Part's count of points with them; faces stay. Returns the count: 0
// when nothing was kept, and then nothing changes.
int RestorePoints(ModelStore& model, int part);

}  // namespace pelorium
