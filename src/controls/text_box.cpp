// Text boxes and labels.
#include "controls/text_box.h"

#include <utility>

#include "base/numbers.h"

namespace pelorium {

TextBox::TextBox(Window& owner, std::string name, std::string text, std::string toolTip)
    : Control(owner, ControlKind::TextBox, std::move(name), {}, std::move(toolTip)), text_(std::move(text)) {}

double TextBox::Number() const { return Val(text_); }

void TextBox::SetText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  NotifyChanged();
  if (onChange) onChange();
}

void TextBox::Type(const std::string& text) {
  SetText(text);
  if (onKeyUp) onKeyUp();
}

Label::Label(Window& owner, std::string name, std::string caption, std::string toolTip)
    : Control(owner, ControlKind::Label, std::move(name), std::move(caption), std::move(toolTip)) {}

}  // namespace pelorium
