// Draws the picture of the model.
#pragma once

#include "graphics/picture.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

// What the views show, from the controls that say so.
ViewSettings GatherViewSettings(const App& app);

// Paints the wire views as the tables and the controls are now.
void PaintViews(App& app, Picture& picture);

// The view's side of the calls that end every operation.
void LinkViews(App& app);

}  // namespace pelorium
