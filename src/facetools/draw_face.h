// The picture of one face: the triangle laid by the lengths of its edges, and its measures as text.
#pragma once

#include "core/model_store.h"
#include "graphics/picture.h"

namespace pelorium {

// Paints from nothing. The triangle takes nine tenths of the picture, corner 1 is red, 2 green, 3 blue; the
// lines of text end at the picture's edge. One scan over the Part's points. A corner outside the table raises
// a Subscript fault.
void DrawFace(const ModelStore& model, int part, int face, Picture& picture);

}  // namespace pelorium
