// Straightens points into columns.
#pragma once

#include "core/chosen_points.h"

namespace pelorium {

// 201 columns stand at origin X + t, t = 0, 1 .. 200, in a wedge that opens with them: a chosen point no
// further from the column than share * t (half a unit at least), and no further than share * t from the
// origin in Y, goes onto the first such column.
void CutAngularly(ModelStore& model, const ChosenPoints& chosen, const Vec3& origin, double share);

}  // namespace pelorium
