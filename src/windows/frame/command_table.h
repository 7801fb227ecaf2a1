// The command set: one table for the menu bar and for the row of buttons in the view window that repeats
// parts of it.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "controls/buttons.h"

namespace pelorium {

class App;

enum class CommandKind {
  Head,       // opens a menu or a submenu
  Show,       // shows the window `target`
  Edit,       // disarms the mouse modes of the view window, then shows the window
  EditAndOn,  // as Edit, and switches the option `also` on
  Press,      // presses the button `target`
  SwitchOn,   // switches the option `target` on
  Run,        // runs `run`
  Change,     // runs `run` in a trap, brings the corners of the faces along, and refreshes the views
  Mark,       // the same where no point moves: without the corners
};

struct MenuCommand {
  std::string_view menu;  // the head it stands under; empty for the menu bar itself
  std::string_view caption;
  std::string_view name;
  CommandKind kind = CommandKind::Head;
  std::string_view target = {};  // "Form31" or "Form31.Command15"
  void (*run)(App&) = nullptr;
  std::string_view also = {};
  std::string_view toolTip = {};
};

const std::vector<MenuCommand>& MenuCommands();

// True when all that the command needs exists: its window, its button (and that is enabled), its routine.
// Commands whose window is still to come stand in the menu disabled.
bool IsAvailable(const App& app, const MenuCommand& command);
// Faults are noted under the name of the control that was pressed.
void RunMenuCommand(App& app, const MenuCommand& command, const Control& pressed);

// The buttons of the row in the view window do what their menu items do; "Collapse into part#" has none.
void BindCommandRow(App& app, const std::vector<std::unique_ptr<PushButton>>& row);

}  // namespace pelorium
