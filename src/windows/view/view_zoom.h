// Zooming with the wheel, and fitting the model into the view.
#pragma once

#include "controls/picture_box.h"

namespace pelorium {

class App;

// Away from the person zooms in, about the place under the mouse; a wire view keeps its limits, the shaded
// view moves its "Zoom" by a tenth a step. With Ctrl nothing happens.
void TurnWheelOverView(App& app, const WheelEvent& wheel);

// Both Parts fill nine tenths of the view. Without points the view goes home.
void FitModel(App& app);

// "+" and "=" zoom in gently.
void ZoomInGently(App& app);

}  // namespace pelorium
