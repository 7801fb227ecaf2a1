// The row of buttons in the view window that repeats parts of the menu.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "controls/buttons.h"

namespace pelorium {

// A button that does what a menu item does.
struct CommandButton {
  std::string_view name, caption, menuItem;
};

const std::vector<CommandButton>& CommandButtons();

// The row's buttons as controls of `window`, in the table's order, switched off: the command table binds
// them.
std::vector<std::unique_ptr<PushButton>> MakeCommandRow(Window& window);

}  // namespace pelorium
