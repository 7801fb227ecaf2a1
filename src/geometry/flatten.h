// Presses the chosen points flat against a plane through the origin.
#pragma once

#include "core/axes.h"
#include "core/chosen_points.h"

namespace pelorium {

enum class FlatSide { Below, Above };  // the side of the plane that is pressed

// Chosen points whose coordinate lies on that side of `plane` get it; they stay chosen. The others stay where
// they are.
void FlattenChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, FlatSide side, double plane);

}  // namespace pelorium
