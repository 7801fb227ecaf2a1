// The parameters that all windows share, read where they are kept: in controls of the View Options and of
// Precise Edit. No other place spells those controls to mean them.
#pragma once

#include "core/chosen_points.h"
#include "core/model_store.h"

namespace pelorium {

class App;

int CurrentPart(const App& app);
int CurrentProfile(const App& app);
int PointRangeStart(const App& app);
int PointRangeEnd(const App& app);
int FaceRangeStart(const App& app);
int FaceRangeEnd(const App& app);
// The pivot of all turns and scales. A text that is no number counts as 0.
Vec3 Origin(const App& app);
void SetOrigin(App& app, const Vec3& origin);
// The marked points of the point range of the current Part.
ChosenPoints Chosen(const App& app);

}  // namespace pelorium
