// The whole view in a small picture.
#pragma once

#include "graphics/picture.h"

namespace pelorium {

class App;

// Gives an area `width` pixels, the view's proportions and its units across and down: a place of the area
// means that place of the view.
void FollowWholeView(const App& app, Picture& area, int width);

}  // namespace pelorium
