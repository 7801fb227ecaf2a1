// Giving every face three points of its own.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The faces that are on, in their order, become the faces 1, 2, 3 ... of the Part. Face n takes three points,
// the last of them 3n, which lie where the face's own copies of its corners are. Faces that are off are
// dropped. Group and UV points of a face travel with it. Ends with face 7666, the last one that finds three
// of the 23000 points.
void DisjoinFaces(ModelStore& model, int part);

// The rest of a Part whose faces 1..`faces` are of that kind and hold their corners' places: their points,
// their corner numbers, the counts. At most kMostSeparateFaces.
inline constexpr int kMostSeparateFaces = kMaxPoints / 3;
void LaySeparateFaces(ModelStore& model, int part, int faces);

}  // namespace pelorium
