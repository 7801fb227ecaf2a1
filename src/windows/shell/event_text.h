// A person's doings as lines of the script language: what a journal holds.
#pragma once

#include <string>

#include "controls/user_event.h"

namespace pelorium {

// A word as it stands in a script: in double quotes when it is empty or holds blanks, quotes, "\" or a
// leading "#".
std::string ScriptWord(const std::string& text);

// The line (without line end) that does the same when a script plays it.
std::string ScriptLine(const UserEvent& event);

}  // namespace pelorium
