// Text boxes and labels.
#pragma once

#include "controls/control.h"

namespace pelorium {

class TextBox : public Control {
 public:
  TextBox(Window& owner, std::string name, std::string text, std::string toolTip = {});

  const std::string& text() const { return text_; }
  double Number() const;  // the leading number of the text, else 0

  // As the program sets it: a different text runs onChange within the call.
  void SetText(const std::string& text);
  // As a person replaces it: onChange if it differs, then onKeyUp in any case.
  void Type(const std::string& text);

  PropertyValue Value() const override { return text_; }
  void SetOwnValue(const PropertyValue& value) override { SetText(AsText(value)); }

  std::function<void()> onChange;
  std::function<void()> onKeyUp;

 private:
  std::string text_;
};

class Label : public Control {
 public:
  Label(Window& owner, std::string name, std::string caption, std::string toolTip = {});
};

}  // namespace pelorium
