// What a drag over the view does to the model in the modes Move, Rotate, Scale and Move Origin.
#pragma once

#include "core/axes.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

// One step of a drag, in the picture's units: d1 across; d2 and d3 up. They differ where a switch of the View
// Options holds an axis.
struct DragStep {
  double d1 = 0, d2 = 0, d3 = 0;
  bool isRight = false, isShift = false;
};

// The model axes that a drag works along. A single view's are X, Y, Z whatever it shows: left and right on
// the screen is always X.
struct DragAxes {
  Axis across = Axis::X, up = Axis::Y, out = Axis::Z;
};

// Those of a picture of the tri view, which works along what it shows.
DragAxes DragAxesOf(Projection projection);

// Does what the armed mode does, then SyncFaceCorners and RefreshViews; false when none is armed that edits.
bool DragModel(App& app, const DragStep& step, const DragAxes& axes);

}  // namespace pelorium
