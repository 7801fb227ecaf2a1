// Text boxes and labels.
#include "controls/text_box.h"

#include <utility>

#include "base/numbers.h"

namespace pelorium {

TextBox::TextBox(Window& owner, std::string name, std::string text, std::string toolTip)
    : Control(owner, ControlKind::TextBox, std::move(name), {}, std::move(toolTip)), text_(std::move(text)) {}

double TextBox::Number() const { return Val(instead_.value_or(text_)); }

void TextBox::SetText(const std::string& text) {
  instead_.reset();
  if (text == text_) return;
  text_ = text;
  NotifyChanged();
  if (onChange) onChange();
}

void TextBox::Type(const std::string& text) {
  isTyped_ = true;
  SetText(text);
  if (onKeyUp) onKeyUp();
}

void TextBox::ShowInstead(const std::string& text) {
  instead_ = text;
  if (!isTyped_) FinishTyping();
}

void TextBox::FinishTyping() {
  isTyped_ = false;
  if (!instead_) return;
  text_ = *std::exchange(instead_, std::nullopt);
  NotifyChanged();
}

void TextBox::SetGround(Ground ground) {
  if (std::exchange(ground_, ground) != ground) NotifyChanged();
}

Label::Label(Window& owner, std::string name, std::string caption, std::string toolTip)
    : Control(owner, ControlKind::Label, std::move(name), std::move(caption), std::move(toolTip)) {}

}  // namespace pelorium
