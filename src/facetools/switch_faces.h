// Switching faces on and off. What is off, exports and deletions of unused faces leave out or take away.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Faces `first`..`last` of a Part, numbers from 1 to 7700, whether in use or not; none when last is below
// first. A range outside the table raises a Subscript fault and switches nothing.
void SwitchFaces(ModelStore& model, int part, int first, int last, bool on);

// On becomes off and off becomes on. A face whose mark is neither 0 nor 1 keeps it.
void InvertFaces(ModelStore& model, int part, int first, int last);

}  // namespace pelorium
