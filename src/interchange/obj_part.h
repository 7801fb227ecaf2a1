// Parts of a library as OBJ files: a hundredth of their size, triangles that are on.
#pragma once

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// The Parts first..last: all their points, then their faces, which count the points of the Parts before
// theirs. A position is rounded to 3 decimals before it is divided, so that reading it with a factor of 100
// loses nothing more. `withGroups` heads the faces of each Part with "g group" and its number.
void WriteObjPart(const ModelStore& model, int first, int last, bool withGroups, TextWriter& out);

}  // namespace pelorium
