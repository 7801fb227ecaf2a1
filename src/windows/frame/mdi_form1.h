// The main frame: the menu bar and the start and end of the program.
#pragma once

#include <memory>
#include <vector>

#include "controls/buttons.h"
#include "controls/window.h"

namespace pelorium {

class App;

class MDIForm1 : public Window {
 public:
  explicit MDIForm1(App& app);

  // The one initialisation of the program, in a fixed order.
  void Load();

  // Unloads every window and ends the program. No question is asked and nothing is saved.
  void Exit();
  void Close() override { Exit(); }

  // The menu bar and all that hangs under it, from the command table.
  const std::vector<std::unique_ptr<MenuItem>>& menu() const { return menu_; }

 private:
  void BindCommands();
  void PlaceWindows();

  App& app_;
  std::vector<std::unique_ptr<MenuItem>> menu_;
};

}  // namespace pelorium
