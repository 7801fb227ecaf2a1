// Copying a Part into another one: over it, or behind what it holds.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Faces with their corners, copies, group and state; points with their places and marks; counts, name and
// sections. A mapping does not travel: UV points and the faces' numbers of them stay what they were in `to`,
// and so does what stands behind its new counts.
void CopyPart(ModelStore& model, int from, int to);

// The same behind the points and faces of `to`, which keeps its name; corners are raised by the points
// before. What fits is written: points up to 23000, faces up to 7700. A face that would name a point past
// 23000 is left out, and those behind it close up. The counts end at what was written.
void AppendPart(ModelStore& model, int from, int to);

}  // namespace pelorium
