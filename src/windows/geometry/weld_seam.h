// Moving points together that lie close to each other, as the menu and the generators ask for it.
#pragma once

namespace pelorium {

class App;

// Moves points of the current Part that lie within 2 units of each other onto one place. A small model falls
// together as a whole.
void JoinClosePoints(App& app);

// The same for the seam of a generated body, which then counts one section less.
void WeldSeam(App& app);

}  // namespace pelorium
