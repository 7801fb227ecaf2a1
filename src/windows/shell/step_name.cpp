// Names of steps.
#include "windows/shell/step_name.h"

#include <algorithm>

#include "controls/boxed_bar.h"
#include "controls/window.h"

namespace pelorium {

namespace {

// "&Move |" is "Move", "Layers:" is "Layers".
std::string Cleaned(std::string caption) {
  std::erase(caption, '&');
  const char* const ends = " |:\t";
  const std::size_t first = caption.find_first_not_of(ends);
  if (first == std::string::npos) return {};
  return caption.substr(first, caption.find_last_not_of(ends) - first + 1);
}

// What stands before the control in the window.
std::string LabelIn(const LayoutItem& item, const Control& control) {
  const auto& shown = item.controls;
  if (item.kind != LayoutKind::Frame && !item.title.empty() &&
      std::find(shown.begin(), shown.end(), &control) != shown.end()) {
    return item.title;
  }
  for (const LayoutItem& inner : item.items) {
    if (std::string label = LabelIn(inner, control); !label.empty()) return label;
  }
  return {};
}

}  // namespace

const Control& OneOfPair(const Control& control) {
  if (control.kind() != ControlKind::TextBox) return control;
  const auto& all = control.owner().controls();
  const auto at = std::find(all.begin(), all.end(), &control);
  if (at == all.begin() || at == all.end()) return control;
  const auto* bar = dynamic_cast<const BoxedBar*>(*std::prev(at));
  return bar != nullptr && &bar->box == &control ? *bar : control;
}

std::string StepName(const Control& given) {
  const Control& control = OneOfPair(given);
  const bool hasCaption = control.kind() != ControlKind::Label && control.kind() != ControlKind::TextBox;
  if (std::string name = hasCaption ? Cleaned(control.caption()) : std::string{}; !name.empty()) return name;
  if (std::string name = Cleaned(LabelIn(control.owner().layout(), control)); !name.empty()) return name;
  return Cleaned(control.owner().caption());
}

}  // namespace pelorium
