// A person's doings spelt as script lines, and whether a control can have them done to it.
#pragma once

#include "controls/user_event.h"
#include "script/parser.h"

namespace pelorium {

class App;

// The event that a line tells: press, drag, type, doubleclick, key, mouse or resize with what follows. Knows
// nothing of the windows there are. ScriptError for missing, surplus and unknown words.
UserEvent EventOf(const Words& line);

// Raises ScriptError when there is no such control, it is disabled, the doing is not for its kind, or a list
// has no entry of that number.
void CheckPossible(const App& app, const UserEvent& event);

}  // namespace pelorium
