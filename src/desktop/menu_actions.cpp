// Menus on the screen.
#include "desktop/menu_actions.h"

#include <QMenu>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

std::vector<MenuItem*> TopLevelItems(const Window& window) {
  std::vector<MenuItem*> heads;
  for (Control* control : window.controls()) {
    if (control->kind() != ControlKind::MenuItem) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.isTopLevel()) heads.push_back(&item);
  }
  return heads;
}

QAction* MenuActions::Make(MenuItem& item, QWidget* owner) {
  QAction* action = nullptr;
  if (item.children().empty()) {
    action = new QAction(owner);
    QObject::connect(action, &QAction::triggered, owner, [this, &item] { dispatcher_.Press(item, {}); });
  } else {
    auto* menu = new QMenu(owner);
    menu->setToolTipsVisible(true);
    for (MenuItem* child : item.children()) Add(*child, *menu);
    action = menu->menuAction();
  }
  action->setObjectName(ToQt(item.FullName()));
  actions_[&item] = action;
  Sync(item);
  return action;
}

void MenuActions::Add(MenuItem& item, QWidget& bar) { bar.addAction(Make(item, &bar)); }

QToolButton* MenuActions::MakeButton(MenuItem& head, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setAutoRaise(true);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  QAction* action = Make(head, button);
  button->setDefaultAction(action);
  button->setPopupMode(QToolButton::InstantPopup);  // the action's menu asks for another
  button->setObjectName(ToQt(head.FullName()));
  return button;
}

QAction* MenuActions::ActionOf(const Control* item) const {
  const auto found = actions_.find(item);
  return found == actions_.end() ? nullptr : found->second;
}

void MenuActions::Sync(const Control& item) {
  QAction* action = ActionOf(&item);
  if (action == nullptr) return;
  action->setText(ToQt(item.caption()));
  action->setToolTip(ToQt(item.toolTip().empty() ? item.caption() : item.toolTip()));
  action->setEnabled(item.enabled());
  action->setVisible(item.visible());
}

}  // namespace pelorium
