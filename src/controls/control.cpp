// The common part of all controls.
#include "controls/control.h"

#include <array>
#include <utility>

#include "base/numbers.h"
#include "controls/window.h"

namespace pelorium {

std::string_view ControlKindName(ControlKind kind) {
  static constexpr std::array<std::string_view, 16> kNames = {
      "ScrollBar",   "TextBox",  "Label",    "PushButton", "CheckBox", "OptionButton",
      "PictureBox",  "ListBox",  "FileList", "DirList",    "ComboBox", "ProgressBar",
      "RichTextBox", "MenuItem", "Frame",    "Shape"};
  return kNames[static_cast<std::size_t>(kind)];
}

double AsNumber(const PropertyValue& value) {
  if (const double* number = std::get_if<double>(&value)) return *number;
  return Val(std::get<std::string>(value));
}

std::string AsText(const PropertyValue& value) {
  if (const double* number = std::get_if<double>(&value)) return ShortestForm(*number);
  return std::get<std::string>(value);
}

Control::Control(Window& owner, ControlKind kind, std::string name, std::string caption, std::string toolTip)
    : owner_(owner),
      kind_(kind),
      name_(std::move(name)),
      caption_(std::move(caption)),
      toolTip_(std::move(toolTip)) {
  owner_.Adopt(*this);
}

std::string Control::FullName() const { return owner_.name() + "." + name_; }

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  NotifyChanged();
}

void Control::SetToolTip(std::string toolTip) {
  if (toolTip == toolTip_) return;
  toolTip_ = std::move(toolTip);
  NotifyChanged();
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  NotifyChanged();
}

void Control::SetVisible(bool visible) {
  if (visible != visible_) BeforeShowingOrHiding();
  visible_ = visible;
  NotifyChanged();
}

void Control::Press(const Click& click) {
  if (onClick) onClick(click);
}

void Control::DoubleClick() {
  if (onDoubleClick) onDoubleClick();
}

void Control::Key(char character) {
  if (onKey) onKey(character);
}

void Control::NotifyChanged() {
  if (ControlListener* listener = owner_.host().listener) listener->ControlChanged(*this);
}

}  // namespace pelorium
