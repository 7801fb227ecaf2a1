// Carries out the commands of the table, and binds the buttons that repeat them.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "controls/buttons.h"
#include "windows/frame/command_table.h"

namespace pelorium {

// True when all that the command needs exists: its window, its button (and that is enabled), its routine.
// Commands whose window is still to come stand in the menu disabled.
bool IsAvailable(const App& app, const MenuCommand& command);
// Of the command itself, or of the control that it presses.
std::string_view ToolTipOf(const App& app, const MenuCommand& command);
// Faults are noted under the name of the control that was pressed.
void RunMenuCommand(App& app, const MenuCommand& command, const Control& pressed);

// The buttons of the row in the view window do what their menu items do; "Collapse into part#" has none.
void BindCommandRow(App& app, const std::vector<std::unique_ptr<PushButton>>& row);

}  // namespace pelorium
