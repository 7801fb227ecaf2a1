// Welds a Part: corners on the very same place become one point.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Of all points on one place that the faces in use name, every face takes the lowest number. Positions stay.
// A corner 0 is no point of the Part and stays. A corner outside the table raises a Subscript fault, and no
// face is changed.
void ConjoinCorners(ModelStore& model, int part);

// Points 1..maxpoints that no face in use names are switched off, in both marks.
void SwitchOffUnused(ModelStore& model, int part);

}  // namespace pelorium
