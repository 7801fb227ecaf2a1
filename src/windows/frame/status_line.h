// One line about what is worked on: for a face that has room for it.
#pragma once

#include <string>

namespace pelorium {

class App;

// "Part 0   Profile 3   512 points, 40 chosen   1020 faces   vase.prj", with a dot behind it when the model
// has changed since the project was opened or saved. Cheap enough for every event at full tables.
std::string StatusLine(const App& app);

// What the mouse does on the view: "Pick Points: drag to choose, right button takes off, Shift takes all".
std::string MouseHint(const App& app);

}  // namespace pelorium
