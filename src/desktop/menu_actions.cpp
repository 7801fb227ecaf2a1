// Menus on the screen.
#include "desktop/menu_actions.h"

#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

// The heads of a window's menus, in their order.
std::vector<MenuItem*> TopLevelItems(const Window& window) {
  std::vector<MenuItem*> heads;
  for (Control* control : window.controls()) {
    if (control->kind() != ControlKind::MenuItem) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.isTopLevel()) heads.push_back(&item);
  }
  return heads;
}

// A menu bar shows no tool tips by itself.
class BarTips : public QObject {
 public:
  explicit BarTips(QMenuBar& bar) : QObject(&bar), bar_(bar) { bar.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    const auto& help = static_cast<QHelpEvent&>(*event);
    QAction* action = bar_.actionAt(help.pos());
    if (action == nullptr || action->menu() != nullptr) return false;
    QToolTip::showText(help.globalPos(), action->toolTip(), &bar_, bar_.actionGeometry(action));
    return true;
  }

 private:
  QMenuBar& bar_;
};

}  // namespace

void MenuActions::LeaveLettersOf(const Window& window) {
  for (const Control* control : window.controls()) {
    const std::string& caption = control->caption();
    const std::size_t sign = caption.find('&');
    if (sign != std::string::npos && sign + 1 < caption.size()) takenLetters_ += caption[sign + 1];
  }
}

void MenuActions::FillBar(const Window& window, QMenuBar& bar) {
  new BarTips(bar);
  const std::vector<MenuItem*> heads = TopLevelItems(window);
  ChooseLetters(heads, takenLetters_);
  for (MenuItem* head : heads) {
    takenLetters_ += MnemonicAt(head->caption(), shown_[head].mnemonic);
    QAction* action = Make(*head, &bar);
    bar.addAction(action);
    if (head->children().empty()) continue;
    QObject::connect(action, &QAction::triggered, &bar, [&bar, action] { bar.setActiveAction(action); });
  }
}

std::vector<QToolButton*> MenuActions::MakeButtons(const Window& window, QWidget* parent) {
  const std::vector<MenuItem*> heads = TopLevelItems(window);
  ChooseLetters(heads, takenLetters_);
  std::vector<QToolButton*> buttons;
  for (MenuItem* head : heads) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QAction* action = Make(*head, button);
    button->setDefaultAction(action);
    button->setText(action->text());                  // with its letter, which an action's button leaves out
    button->setPopupMode(QToolButton::InstantPopup);  // the action's menu asks for another
    button->setObjectName(ToQt(head->FullName()));
    buttons.push_back(button);
  }
  return buttons;
}

void MenuActions::ChooseLetters(const std::vector<MenuItem*>& items, const std::string& taken) {
  std::vector<std::string> captions;
  for (const MenuItem* item : items) captions.push_back(item->caption());
  const std::vector<int> places = ChooseMnemonics(captions, taken);
  for (std::size_t i = 0; i < items.size(); ++i) shown_[items[i]].mnemonic = places[i];
}

QAction* MenuActions::Make(MenuItem& item, QWidget* owner) {
  QAction* action = item.children().empty() ? new QAction(owner) : MakeHead(item, owner);
  if (item.children().empty()) {
    QObject::connect(action, &QAction::triggered, owner, [this, &item] { press_(item); });
  }
  action->setObjectName(ToQt(item.FullName()));
  const QKeySequence keys(ToQt(item.shortcut));
  action->setShortcut(keys);
  action->setShortcutContext(Qt::ApplicationShortcut);  // floating panels are windows of their own
  if (item.lacks && (item.isTopLevel() || !keys.isEmpty())) watched_.push_back(&item);
  shown_[&item].action = action;
  Sync(item);
  return action;
}

QAction* MenuActions::MakeHead(MenuItem& head, QWidget* owner) {
  auto* menu = new QMenu(owner);
  menu->setToolTipsVisible(true);
  Fill(head, *menu);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [this, &head] {
    for (const MenuItem* child : head.children()) {
      if (child->lacks) Sync(*child);
    }
  });
  return menu->menuAction();
}

void MenuActions::Fill(const MenuItem& head, QMenu& menu) {
  ChooseLetters(head.children());
  for (MenuItem* child : head.children()) {
    if (child->hasLineAbove) menu.addSeparator();
    menu.addAction(Make(*child, &menu));
  }
}

QAction* MenuActions::ActionOf(const Control* item) const {
  const auto found = shown_.find(item);
  return found == shown_.end() ? nullptr : found->second.action;
}

void MenuActions::Sync(const Control& control) {
  const auto found = shown_.find(&control);
  if (found == shown_.end() || found->second.action == nullptr) return;
  const auto& item = static_cast<const MenuItem&>(control);
  QAction& action = *found->second.action;
  const std::string lack = item.lacks ? item.lacks() : std::string();
  std::string tip = item.toolTip().empty() ? item.caption() : item.toolTip();
  if (!lack.empty()) tip += " (" + lack + ")";
  if (item.isTopLevel() && !item.shortcut.empty()) tip += " (" + item.shortcut + ")";
  action.setText(ToQt(WithMnemonic(item.caption(), found->second.mnemonic)));
  action.setToolTip(ToQt(tip));
  action.setStatusTip(ToQt(tip));
  action.setEnabled(item.enabled() && lack.empty());
  action.setVisible(item.visible());
}

void MenuActions::SyncLacks() {
  for (const MenuItem* item : watched_) Sync(*item);
}

}  // namespace pelorium
