// Push buttons, check boxes, option buttons and menu items.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace pelorium {

class PushButton : public Control {
 public:
  PushButton(Window& owner, std::string name, std::string caption, std::string toolTip = {});
  using Control::Press;
  void Press(MouseButton button = MouseButton::Left) { Control::Press(Click{button, {}}); }

  // A face presses it when the mouse button goes down over it, not when it is let go.
  bool actsOnMouseDown = false;
};

// onClick runs whenever the value changes, whoever changes it.
class CheckBox : public Control {
 public:
  CheckBox(Window& owner, std::string name, std::string caption, bool value = false,
           std::string toolTip = {});

  bool value() const { return value_; }
  void SetValue(bool value);
  void Press(const Click& click) override;

  PropertyValue Value() const override { return value_ ? 1.0 : 0.0; }
  void SetOwnValue(const PropertyValue& value) override { SetValue(AsNumber(value) != 0); }

 private:
  bool value_;
};

// Options of one window with the same group name exclude each other. onClick runs when the option is switched
// on.
class OptionButton : public Control {
 public:
  enum class WhenArmed { Stays, IsDisarmed };  // what a click on the option that is on does

  OptionButton(Window& owner, std::string name, std::string caption, std::string group, bool value = false,
               std::string toolTip = {}, WhenArmed whenArmed = WhenArmed::Stays);

  bool value() const { return value_; }
  const std::string& group() const { return group_; }
  void SetValue(bool value);
  void Press(const Click& click) override;

  PropertyValue Value() const override { return value_ ? 1.0 : 0.0; }
  void SetOwnValue(const PropertyValue& value) override { SetValue(AsNumber(value) != 0); }

 private:
  void SwitchOffTheOthers();

  std::string group_;
  bool value_;
  WhenArmed whenArmed_;
};

// An entry of the menu bar, or a head that holds others.
class MenuItem : public Control {
 public:
  MenuItem(Window& owner, std::string name, std::string caption, MenuItem* parent = nullptr);

  const std::vector<MenuItem*>& children() const { return children_; }
  bool isTopLevel() const { return parent_ == nullptr; }

  // How a face shows it: "Ctrl+O"; a line above it.
  std::string shortcut;
  bool hasLineAbove = false;
  // What is missing before it can do its work, such as "nothing copied yet"; empty when nothing is. A face
  // shows the item disabled meanwhile and says why. It stays enabled for scripts, where it does nothing then.
  std::function<std::string()> lacks;

 private:
  MenuItem* parent_;
  std::vector<MenuItem*> children_;
};

// A titled box that can be clicked on.
class FrameBox : public Control {
 public:
  FrameBox(Window& owner, std::string name, std::string caption, std::string toolTip = {});
};

}  // namespace pelorium
