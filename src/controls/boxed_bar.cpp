// Bars with their boxes.
#include "controls/boxed_bar.h"

#include <string_view>

#include "base/numbers.h"

namespace pelorium {

namespace {

std::string StartText(const BarSpec& spec) {
  return spec.text != nullptr ? spec.text : GeneralForm(spec.range.value / spec.divisor);
}

const char* BoxTip(const BarSpec& spec) {
  return std::string_view(spec.boxTip).empty() ? spec.toolTip : spec.boxTip;
}

}  // namespace

BoxedBar::BoxedBar(Window& owner, const BarSpec& spec, Typing typing)
    : ScrollBar(owner, spec.bar, spec.range, spec.label, spec.toolTip),
      box(owner, spec.box, StartText(spec), BoxTip(spec)),
      startValue_(spec.range.value),
      startText_(StartText(spec)) {
  SetMirror(box, spec.divisor);
  if (typing == Typing::MovesBar) box.onKeyUp = [this] { TakeTyped(); };
}

void BoxedBar::Reset() {
  SetValue(startValue_);
  box.SetText(startText_);  // a typed number may differ from its bar
}

LayoutItem BarRow(BoxedBar& bar, std::initializer_list<Control*> others) {
  LayoutItem row = BarRow(static_cast<Control&>(bar), {&bar.box});
  row.controls.insert(row.controls.end(), others);
  return row;
}

}  // namespace pelorium
