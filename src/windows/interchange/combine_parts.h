// "Combine" and "Collapse", as the menu and the library of parts press them.
#pragma once

#include "interchange/merge_parts.h"

namespace pelorium {

class App;

// Makes the current Part of both Parts, at their full size, and moves it so that its point 1 lies on the
// origin.
void CombineIntoCurrent(App& app, OtherParts others);

// Makes the current Part of both, where they are; the other one is erased, and the current profile has no
// points any more. From the profile view to the view of the Parts.
void CollapseIntoCurrent(App& app);

}  // namespace pelorium
