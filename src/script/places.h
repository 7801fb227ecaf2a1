// Places: the texts that name a value of the program ("Form55.HScroll24.max", "Points(0,1).X").
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace pelorium {

class App;
class Window;

// One value of the program. `get` gives a number or a text. `set` takes the value as a script spells it; it
// raises ScriptError or Fault when the value does not fit, and for what cannot be set. A control's handlers
// run, a table's field is just written.
struct Place {
  std::function<PropertyValue()> get;
  std::function<void(const std::string& word)> set;
};

// Raises ScriptError for a name that nothing has, and a Subscript fault outside a table. The place is good as
// long as the program.
Place FindPlace(App& app, const std::string& text);

// "Form55" and "Form55.HScroll24"; ScriptError when there is none of that name.
Window& FindWindow(const App& app, const std::string& name);
Control& FindControl(const App& app, const std::string& place);

}  // namespace pelorium
