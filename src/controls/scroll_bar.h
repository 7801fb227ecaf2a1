// Scroll bars and progress bars.
#pragma once

#include <optional>

#include "controls/control.h"

namespace pelorium {

class TextBox;

struct BarRange {
  int min = 0;
  int max = 32767;
  int value = 0;
  int smallChange = 1;
  int largeChange = 10;
};

class ScrollBar : public Control {
 public:
  ScrollBar(Window& owner, std::string name, BarRange range, std::string caption = {},
            std::string toolTip = {});

  int value() const { return value_; }
  int min() const { return min_; }
  int max() const { return max_; }

  // As the program sets it: outside min..max (either order) raises InvalidValue; an equal value does nothing;
  // a different one moves the mirror and runs onChange once, within the call.
  void SetValue(int value);
  // A value that the new limit leaves outside is pulled to the nearest inside, which runs onChange.
  void SetMin(int min);
  void SetMax(int max);
  // Raises the limits as far as the value needs, then sets it.
  void SetValueWidening(int value);
  // The nearest value inside min..max.
  int Clamped(double value) const;
  // As a person moves it: clamped, then set.
  void Drag(double value);
  // True when a person moved the bar since this was last set false.
  bool movedByPerson = false;
  // Runs before the bar moves by a person's hand, whether its value changes or not.
  std::function<void()> onMovedByPerson;

  // Shows a record's value: the bar goes to the nearest it can, the mirror shows the number itself, and no
  // handler runs, so that nothing is written back.
  void Show(double shown);

  // A new limit as Show: a value that it leaves outside is pulled in, and no handler runs.
  void ShowMax(int max);

  // What the bar stands for: value / divisor, or the finer number that was typed or shown.
  double Shown() const { return number_; }

  PropertyValue Value() const override { return static_cast<double>(value_); }
  void SetOwnValue(const PropertyValue& value) override;

  std::function<void()> onChange;
  int smallChange, largeChange;

 protected:
  // `box` shows value / divisor in general form from now on.
  void SetMirror(TextBox& box, double divisor);
  // As a person types into that box: the bar goes to the nearest whole value inside min..max, and the number
  // itself, fractions included, is what it stands for. Outside min..max that is the limit, which the box
  // shows when the typing is over. onChange runs when the number is another one than before; true if it did.
  bool TakeTyped();

 private:
  void Store(int value);
  void BeginMoveByPerson();

  int min_, max_, value_;
  TextBox* mirror_ = nullptr;
  double divisor_ = 1;
  double number_;
  bool isNumberTyped_ = false;
};

// Shows how far a long job is. The face repaints it while the handler still runs.
class ProgressBar : public Control {
 public:
  ProgressBar(Window& owner, std::string name, int max);

  int value() const { return value_; }
  int max() const { return max_; }
  void SetMax(int max);
  void SetValue(int value);  // held in 0..max

  PropertyValue Value() const override { return static_cast<double>(value_); }
  void SetOwnValue(const PropertyValue& value) override;

 private:
  int max_, value_ = 0;
};

}  // namespace pelorium
