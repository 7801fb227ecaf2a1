// Menus on the screen: those of the frame's menu bar, and those that head a page.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/buttons.h"
#include "controls/window.h"

namespace pelorium {

class MenuActions {
 public:
  // What a chosen item does.
  explicit MenuActions(std::function<void(MenuItem&)> press) : press_(std::move(press)) {}

  // Letters that controls of the window have for themselves: menus leave them alone.
  void LeaveLettersOf(const Window& window);
  // All menus of the window.
  void FillBar(const Window& window, QMenuBar& bar);
  // The same as buttons that drop their menus down; letters of the bar are not used again.
  std::vector<QToolButton*> MakeButtons(const Window& window, QWidget* parent);

  // The action of an item, if it was made.
  QAction* ActionOf(const Control* item) const;
  // Shows the present state of an item.
  void Sync(const Control& item);
  // Shows what the items lack that are in sight or have a shortcut; the others are asked when their menu
  // opens.
  void SyncLacks();

 private:
  struct Shown {
    QAction* action = nullptr;
    int mnemonic = -1;  // place in the caption
  };

  void ChooseLetters(const std::vector<MenuItem*>& items, const std::string& taken = {});
  QAction* Make(MenuItem& item, QWidget* owner);
  QAction* MakeHead(MenuItem& head, QWidget* owner);
  void Fill(const MenuItem& head, QMenu& menu);

  std::function<void(MenuItem&)> press_;
  std::unordered_map<const Control*, Shown> shown_;
  std::vector<const MenuItem*> watched_;
  std::string takenLetters_;
};

}  // namespace pelorium
