// Values of rooms above the ground that several rooms read. Those of the view stand in
// view/shared_parameters.h.
#pragma once

#include <string>

#include "windows/shell/room_links.h"

namespace pelorium {

class App;

// The side from which the profile view shows profiles.
Projection SubView(const App& app);
// The coordinate of a drawn profile point that the view does not show.
double Elevation(const App& app);
// The shape of picks in the view, from Edit Geometry.
PickShapeSettings PickSettings(const App& app);
// The point and the face of Face Info: the views mark them.
int ChosenPoint(const App& app);
int ChosenFace(const App& app);
// Why nothing can be taken from the clipboard; empty when it holds a picture.
std::string LackOfPicture(App& app);

}  // namespace pelorium
