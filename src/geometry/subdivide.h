// Splitting every face in three.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Each face that is on, with the corners a, b, c where its own copies are and their centroid m, becomes the
// faces (a, b, m), (b, c, m), (c, a, m) at the next three numbers, in its group and without UV points. All
// have three points of their own, as after DisjoinFaces; faces that are off are dropped. Ends with face 7666,
// within a split face: more than 2555 faces are cut.
void SubdivideFaces(ModelStore& model, int part);

}  // namespace pelorium
