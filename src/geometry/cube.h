// The default cube.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The Part becomes a cube of 200 units around the place (0, 0, 0): 8 points, 12 faces, all of them on. Name,
// groups and mapping of the Part stay.
void MakeCube(ModelStore& model, int part);

}  // namespace pelorium
