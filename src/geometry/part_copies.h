// Copies a Part's points and those of its faces that are on into a Part, the same one or another, behind any
// points and faces of it.
#pragma once

#include "core/model_store.h"

namespace pelorium {

struct PartCopy {
  int from = 0, to = 0;
  int pointOffset = 0, faceOffset = 0;  // added to the numbers of points, and counted before the first face
  bool copiesPoints = true;             // off: faces alone, over points that stand there already
};

// Behind all that the target holds.
PartCopy Appended(const ModelStore& model, int from, int to);

// Points carry their position and both marks, faces their corners (plus the point offset, 23000 at most),
// their own positions and their group, and are on. What no longer fits is left out. The target's counts end
// at what was written; it is no laid body any more.
void CopyPart(ModelStore& model, const PartCopy& copy);

// The same with three points for each face, which take the face's own positions and are chosen and on.
// `copiesPoints` is not asked.
void CopyPartDisjoint(ModelStore& model, const PartCopy& copy);

}  // namespace pelorium
