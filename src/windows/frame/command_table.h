// The command set: one table for the menu bar, its shortcuts and tool tips, and for the row of buttons in the
// view window that repeats parts of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

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

// What a command does, with what.
struct CommandAction {
  constexpr CommandAction() = default;
  constexpr CommandAction(CommandKind k, std::string_view what, std::string_view with = {})
      : kind(k), target(what), also(with) {}
  constexpr CommandAction(CommandKind k, void (*routine)(App&)) : kind(k), run(routine) {}

  CommandKind kind = CommandKind::Head;
  std::string_view target, also;  // "Form31" or "Form31.Command15"
  void (*run)(App&) = nullptr;
};

struct MenuCommand {
  std::string_view menu;  // the head it stands under; empty for the menu bar itself
  std::string_view caption;
  std::string_view name;
  CommandAction action = {};
  std::string_view toolTip = {};  // empty: that of the control it presses
  std::string_view shortcut =
      {};  // of a head: opens it; of the windows' menu: what a window's number follows
  bool hasLineAbove = false;
  std::string (*lacks)(App&) = nullptr;  // MenuItem::lacks
};

const std::vector<MenuCommand>& MenuCommands();

}  // namespace pelorium
