// Closing the rings of a generated Part.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Puts the last point of each ring onto the ring's first, without welding them: for rings of `ringWidth`
// points, point r * ringWidth takes the place of point (r - 1) * ringWidth + 1, as long as it is no higher
// than maxpoints. A ring width below 1 does nothing.
void JoinRingEnds(ModelStore& model, int part, int ringWidth);

}  // namespace pelorium
