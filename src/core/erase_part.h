// Emptying Parts and faces. Names, UV points, profiles and materials stay; so does the table itself, whose
// records go back to one place.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// All points at 1, 1, 1, on and marked; all faces empty (corners 1, 1, 1), on and in group 1. An erased Part
// counts one point and one face, unlike one at the start, which counts none.
void ErasePart(ModelStore& model, int part);

// Every face of the table becomes empty and on; counts and points stay.
void EraseFaces(ModelStore& model, int part);

// Switches all points on and empties the faces that are off. Nothing is renumbered: the counts stay.
void EraseFacesTurnedOff(ModelStore& model, int part);

}  // namespace pelorium
