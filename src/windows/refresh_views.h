// The two calls that end every operation.
#pragma once

#include "views/view_settings.h"

namespace pelorium {

class App;

// What the views show, from the controls that say so.
ViewSettings GatherViewSettings(const App& app);

// Redraws the picture of the model from the tables and the controls. May be called at any time.
void RefreshViews(App& app);

// Copies the points' positions into the faces of the current Part, unless Check6 of the View Options holds
// them back, and shows the counts. Points moved without this leave the wire as it was.
void SyncFaceCorners(App& app);

}  // namespace pelorium
