// The commands of the script language, a table.
#pragma once

#include <string>
#include <string_view>

#include "script/parser.h"

namespace pelorium {

class ScriptRunner;

struct Command {
  std::string_view name;
  std::size_t least, most;                                // words after the name
  std::string_view usage;                                 // what they are
  void (*run)(ScriptRunner& runner, const Words& words);  // words[0] is the name
};

// nullptr if there is no command of that name.
const Command* FindCommand(std::string_view name);

// "get PLACE"
std::string UsageOf(const Command& command);

}  // namespace pelorium
