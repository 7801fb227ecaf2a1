// Closing the rings of a generated Part, and its layers end to end.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Puts the last point of each ring onto the ring's first, without welding them: for rings of `ringWidth`
// points, point r * ringWidth takes the place of point (r - 1) * ringWidth + 1, as long as it is no higher
// than maxpoints. A ring width below 1 does nothing.
void JoinRingEnds(ModelStore& model, int part, int ringWidth);

enum class JoinedLayer { First, Last };  // the one that moves

// Puts the first whole layer of `ringWidth` points onto the last, or the last onto the first, point by point
// and without welding them. Marks are not asked; points behind the last whole layer stay. A ring width below
// 1 or fewer than two layers do nothing.
void JoinLayerEnds(ModelStore& model, int part, int ringWidth, JoinedLayer moved);

}  // namespace pelorium
