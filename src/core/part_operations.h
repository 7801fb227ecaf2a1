// Operations on whole Parts.
#pragma once

#include <string>

#include "core/model_store.h"

namespace pelorium {

// Copies the positions of each face's corner points into the face, for the faces in use of one Part. A corner
// below 0 leaves its face as it is; one above 23000 raises a Subscript fault.
void SyncFaceCorners(ModelStore& model, int part);

// "12faces  points 8", as the View Options show it.
std::string CountCaption(const ModelStore& model, int part);

}  // namespace pelorium
