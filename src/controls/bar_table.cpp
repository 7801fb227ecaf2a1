// Bars from tables.
#include "controls/bar_table.h"

#include "base/numbers.h"

namespace pelorium {

TableBar::TableBar(Window& owner, const BarSpec& spec, Typing typing)
    : bar(owner, spec.bar, spec.range, spec.label, spec.toolTip), spec_(spec) {
  if (*spec.box == '\0') return;
  box_ = std::make_unique<TextBox>(owner, spec.box, StartText());
  typing == Typing::MovesBar ? Pair(bar, *box_, spec.divisor) : Mirror(bar, *box_, spec.divisor);
}

double TableBar::Number() const { return box_ ? box_->Number() : bar.value(); }

void TableBar::Reset() {
  bar.SetValue(spec_.range.value);
  if (box_) box_->SetText(StartText());  // a typed number may differ from its bar
}

std::string TableBar::StartText() const {
  return spec_.text != nullptr ? spec_.text : GeneralForm(spec_.range.value / spec_.divisor);
}

LayoutItem TableBar::Row() { return box_ ? BarRow(bar, {box_.get()}) : BarRow(bar, {}); }

}  // namespace pelorium
