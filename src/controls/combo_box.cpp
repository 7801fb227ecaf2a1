// Typing into the line of a combo box.
#include "controls/combo_box.h"

#include <algorithm>
#include <utility>

namespace pelorium {

ComboBox::ComboBox(Window& owner, std::string name, std::string text, Typing typing, std::string toolTip)
    : ListBox(owner, ControlKind::ComboBox, std::move(name), std::move(toolTip)),
      text_(std::move(text)),
      typing_(typing) {}

void ComboBox::Type(const std::string& text) {
  const auto found = std::find(items().begin(), items().end(), text);
  if (found != items().end()) return Pick(static_cast<int>(found - items().begin()));
  if (!canBeTyped()) return;
  text_ = text;
  SetIndex(-1);
  NotifyChanged();
}

}  // namespace pelorium
