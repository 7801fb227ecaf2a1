// Lays chosen points onto another Part, point by point.
#pragma once

#include "core/chosen_points.h"

namespace pelorium {

// Each chosen point takes the place of the nearest of the points 1..maxpoints of Part `from`, the lowest
// number of several; a Part without points changes nothing. 23000 points onto 23000 take less than a
// tenth of a second.
void CopyNearest(ModelStore& model, const ChosenPoints& chosen, int from);

}  // namespace pelorium
