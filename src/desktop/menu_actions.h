// Menus on the screen: those of the frame's menu bar, and those that head a page.
#pragma once

#include <QAction>
#include <QToolButton>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "controls/buttons.h"
#include "controls/window.h"

namespace pelorium {

class Dispatcher;

// The heads of a window's menus, in their order.
std::vector<MenuItem*> TopLevelItems(const Window& window);

class MenuActions {
 public:
  explicit MenuActions(Dispatcher& dispatcher) : dispatcher_(dispatcher) {}

  // Adds the item, with all that hangs under it, to a bar or a menu.
  void Add(MenuItem& item, QWidget& bar);
  // The same as a button that drops its menu down.
  QToolButton* MakeButton(MenuItem& head, QWidget* parent);

  // The action of an item, if it was made.
  QAction* ActionOf(const Control* item) const;
  // Shows the present state of an item.
  void Sync(const Control& item);

 private:
  QAction* Make(MenuItem& item, QWidget* owner);

  Dispatcher& dispatcher_;
  std::unordered_map<const Control*, QAction*> actions_;
};

}  // namespace pelorium
