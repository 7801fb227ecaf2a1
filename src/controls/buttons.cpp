// Buttons of all sorts.
#include "controls/buttons.h"

#include <utility>

#include "controls/window.h"

namespace pelorium {

PushButton::PushButton(Window& owner, std::string name, std::string caption, std::string toolTip)
    : Control(owner, ControlKind::PushButton, std::move(name), std::move(caption), std::move(toolTip)) {}

CheckBox::CheckBox(Window& owner, std::string name, std::string caption, bool value, std::string toolTip)
    : Control(owner, ControlKind::CheckBox, std::move(name), std::move(caption), std::move(toolTip)),
      value_(value) {}

void CheckBox::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  NotifyChanged();
  if (onClick) onClick({});
}

void CheckBox::Press(const Click&) { SetValue(!value_); }

OptionButton::OptionButton(Window& owner, std::string name, std::string caption, std::string group, bool value,
                           std::string toolTip, WhenArmed whenArmed)
    : Control(owner, ControlKind::OptionButton, std::move(name), std::move(caption), std::move(toolTip)),
      group_(std::move(group)),
      value_(value),
      whenArmed_(whenArmed) {}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  NotifyChanged();
  if (!value) return;
  SwitchOffTheOthers();
  if (onClick) onClick({});
}

void OptionButton::Press(const Click&) {
  SetValue(whenArmed_ == WhenArmed::IsDisarmed ? !value_ : true);
}

void OptionButton::SwitchOffTheOthers() {
  for (Control* control : owner().controls()) {
    if (control == this || control->kind() != ControlKind::OptionButton) continue;
    auto& other = static_cast<OptionButton&>(*control);
    if (other.group_ == group_) other.SetValue(false);
  }
}

MenuItem::MenuItem(Window& owner, std::string name, std::string caption, MenuItem* parent)
    : Control(owner, ControlKind::MenuItem, std::move(name), std::move(caption), {}), parent_(parent) {
  if (parent != nullptr) parent->children_.push_back(this);
}

FrameBox::FrameBox(Window& owner, std::string name, std::string caption, std::string toolTip)
    : Control(owner, ControlKind::Frame, std::move(name), std::move(caption), std::move(toolTip)) {}

}  // namespace pelorium
