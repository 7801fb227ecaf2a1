// Scroll bars.
#include "controls/scroll_bar.h"

#include <algorithm>
#include <utility>

#include "base/fault.h"
#include "base/numbers.h"
#include "controls/text_box.h"

namespace pelorium {

ScrollBar::ScrollBar(Window& owner, std::string name, BarRange range, std::string caption,
                     std::string toolTip)
    : Control(owner, ControlKind::ScrollBar, std::move(name), std::move(caption), std::move(toolTip)),
      smallChange(range.smallChange),
      largeChange(range.largeChange),
      min_(range.min),
      max_(range.max),
      value_(range.value),
      number_(range.value) {}

void ScrollBar::SetValue(int value) {
  if (value != Clamped(value)) {
    throw Fault(FaultKind::InvalidValue, FullName() + " := " + std::to_string(value) + ", allowed " +
                                             std::to_string(min_) + ".." + std::to_string(max_));
  }
  Store(value);
}

void ScrollBar::SetMin(int min) {
  min_ = min;
  NotifyChanged();
  Store(Clamped(value_));
}

void ScrollBar::SetMax(int max) {
  max_ = max;
  NotifyChanged();
  Store(Clamped(value_));
}

void ScrollBar::SetValueWidening(int value) {
  if (value > max_) SetMax(value);
  if (value < min_) SetMin(value);
  SetValue(value);
}

int ScrollBar::Clamped(double value) const {
  const auto [low, high] = std::minmax(min_, max_);
  if (!(value > low)) return low;
  return value < high ? static_cast<int>(RoundHalfEven(value)) : high;
}

void ScrollBar::BeginMoveByPerson() {
  movedByPerson = true;
  if (onMovedByPerson) onMovedByPerson();
}

void ScrollBar::Drag(double value) {
  BeginMoveByPerson();
  SetValue(Clamped(value));
}

bool ScrollBar::TakeTyped() {
  BeginMoveByPerson();
  const double before = number_, wanted = mirror_->Number() * divisor_;
  const auto [low, high] = std::minmax(min_, max_);
  value_ = Clamped(wanted);
  isNumberTyped_ = wanted >= low && wanted <= high;
  number_ = isNumberTyped_ ? mirror_->Number() : value_ / divisor_;
  if (!isNumberTyped_) mirror_->ShowInstead(GeneralForm(number_));
  NotifyChanged();
  if (number_ == before) return false;
  if (onChange) onChange();
  return true;
}

void ScrollBar::Show(double shown) {
  isNumberTyped_ = false;
  number_ = shown;
  value_ = Clamped(shown * divisor_);
  NotifyChanged();
  if (mirror_ != nullptr) mirror_->SetText(GeneralForm(shown));
}

void ScrollBar::ShowMax(int max) {
  max_ = max;
  NotifyChanged();
  if (const int inside = Clamped(value_); inside != value_) Show(inside / divisor_);
}

void ScrollBar::SetMirror(TextBox& box, double divisor) {
  mirror_ = &box;
  divisor_ = divisor;
  number_ = value_ / divisor;
}

void ScrollBar::SetOwnValue(const PropertyValue& value) { SetValue(ToInteger<int>(AsNumber(value))); }

// An equal value runs nothing, but a fraction that was typed goes.
void ScrollBar::Store(int value) {
  const bool drops = std::exchange(isNumberTyped_, false) && number_ != value / divisor_;
  if (value == value_ && !drops) return;
  number_ = value / divisor_;
  if (value == value_) return mirror_->ShowInstead(GeneralForm(number_));
  value_ = value;
  NotifyChanged();
  if (mirror_ != nullptr) mirror_->SetText(GeneralForm(number_));
  if (onChange) onChange();
}

ProgressBar::ProgressBar(Window& owner, std::string name, int max)
    : Control(owner, ControlKind::ProgressBar, std::move(name), {}, {}), max_(max) {}

void ProgressBar::SetMax(int max) {
  max_ = std::max(1, max);
  SetValue(value_);
}

void ProgressBar::SetValue(int value) {
  value_ = std::clamp(value, 0, max_);
  NotifyChanged();
}

void ProgressBar::SetOwnValue(const PropertyValue& value) { SetValue(ToInteger<int>(AsNumber(value))); }

}  // namespace pelorium
