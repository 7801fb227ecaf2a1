// What every control has: a name, a caption, a tool tip, a place, and the events a person causes on it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace pelorium {

class Window;

enum class ControlKind {
  ScrollBar,
  TextBox,
  Label,
  PushButton,
  CheckBox,
  OptionButton,
  PictureBox,
  ListBox,
  FileList,
  DirList,
  ComboBox,
  ProgressBar,
  RichTextBox,
  MenuItem,
  Frame,
  Shape,
};

std::string_view ControlKindName(ControlKind kind);

enum class MouseButton { Left, Right, None };  // None: a mouse that moves with no button held

struct Keys {
  bool shift = false, ctrl = false, alt = false;
  bool operator==(const Keys&) const = default;
};

// One click: which button, and what was held down with it.
struct Click {
  MouseButton button = MouseButton::Left;
  Keys keys;
  bool IsRight() const { return button == MouseButton::Right; }
};

// A control's own value or a property of it, as a face or a script sees it.
using PropertyValue = std::variant<double, std::string>;

// The value as a number: a text counts by its leading number.
double AsNumber(const PropertyValue& value);
// The value as a text: a number in its shortest form.
std::string AsText(const PropertyValue& value);

class Control {
 public:
  Control(Window& owner, ControlKind kind, std::string name, std::string caption, std::string toolTip);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  Window& owner() const { return owner_; }
  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  std::string FullName() const;  // "Form55.HScroll24"

  const std::string& caption() const { return caption_; }
  const std::string& toolTip() const { return toolTip_; }
  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  void SetCaption(std::string caption);
  void SetToolTip(std::string toolTip);
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);

  // The control's own value, and setting it the way the program does: its handlers run.
  virtual PropertyValue Value() const { return caption_; }
  virtual void SetOwnValue(const PropertyValue& value) { SetCaption(AsText(value)); }

  // A click, a double click or a key press by a person.
  virtual void Press(const Click& click);
  void DoubleClick();
  void Key(char character);

  std::function<void(const Click&)> onClick;
  std::function<void()> onDoubleClick;
  std::function<void(char)> onKey;

  // In the units of the control's container. Only what moves by the program's will uses them.
  double left = 0, top = 0, width = 0, height = 0;

  // Tells the face that shows this control that something about it changed.
  void NotifyChanged();

 private:
  // The face will show what the control holds, or no longer.
  virtual void BeforeShowingOrHiding() {}

  Window& owner_;
  ControlKind kind_;
  std::string name_, caption_, toolTip_;
  bool enabled_ = true, visible_ = true;
};

}  // namespace pelorium
