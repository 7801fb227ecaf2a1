// Text boxes and labels.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controls/control.h"

namespace pelorium {

class TextBox : public Control {
 public:
  TextBox(Window& owner, std::string name, std::string text, std::string toolTip = {});

  const std::string& text() const { return text_; }
  // The leading number of the text, else 0; of a typed one that was out of range, the number that will stand
  // there.
  double Number() const;

  // As the program sets it: a different text runs onChange within the call.
  void SetText(const std::string& text);
  // As a person replaces it: onChange if it differs, then onKeyUp in any case. The person is at it until
  // FinishTyping.
  void Type(const std::string& text);
  bool isTyped() const { return isTyped_; }

  // Puts the text there that stands for what was typed, without onChange: at once, or when the typing is
  // over. A
  // "-" that is the start of "-12" is not overwritten.
  void ShowInstead(const std::string& text);
  // The box lost the focus, or another control had an event.
  void FinishTyping();

  // The colour behind the text: of fields, or of buttons where the text counts for nothing.
  enum class Ground { Field, Button };
  Ground ground() const { return ground_; }
  void SetGround(Ground ground);

  PropertyValue Value() const override { return text_; }
  void SetOwnValue(const PropertyValue& value) override { SetText(AsText(value)); }

  std::function<void()> onChange;
  std::function<void()> onKeyUp;

 private:
  std::string text_;
  bool isTyped_ = false;
  Ground ground_ = Ground::Field;
  std::optional<std::string> instead_;  // shown when the typing is over
};

class Label : public Control {
 public:
  Label(Window& owner, std::string name, std::string caption, std::string toolTip = {});
};

}  // namespace pelorium
