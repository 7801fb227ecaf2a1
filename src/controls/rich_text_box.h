// A box in which a person reads and writes a text with looks.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "controls/control.h"
#include "controls/rich_text.h"

namespace pelorium {

// The selection is a range of the text's characters and always lies inside it. With nothing selected, a
// change of look holds for what is typed next at that place.
class RichTextBox : public Control {
 public:
  RichTextBox(Window& owner, std::string name, std::string toolTip = {});

  const RichText& text() const { return text_; }
  void SetText(RichText text);  // nothing is selected afterwards, and the cursor stands at the start

  int selectionStart() const { return selectionStart_; }
  int selectionLength() const { return selectionLength_; }
  std::string SelectedText() const { return text_.Plain(selectionStart_, selectionLength_); }
  void SetSelection(int start, int length);
  // The look of the selection's first character, or of what is typed next.
  TextFormat SelectionFormat() const;

  // Everything selected gets the look, unless all of it has it: then all of it loses it.
  void ToggleBold() { Toggle(&TextFormat::bold); }
  void ToggleItalic() { Toggle(&TextFormat::italic); }
  void ToggleUnderline() { Toggle(&TextFormat::underline); }
  void SetSize(double points);  // held in kSmallestText..kLargestText, rounded to a half
  void SetColour(Colour colour);
  // The same rule as for looks, on every paragraph that the selection touches.
  void ToggleBullet();

  // The cursor stands behind the new text, which looks like what it replaces.
  void ReplaceSelection(std::string_view text) { ReplaceRange(selectionStart_, selectionLength_, text); }
  // The same for any range: how a face tells what a person typed or deleted.
  void ReplaceRange(int start, int length, std::string_view text);

  // The plain text; setting it replaces all by plain text.
  PropertyValue Value() const override { return text_.Plain(); }
  void SetOwnValue(const PropertyValue& value) override { SetText(RichText(AsText(value))); }

  std::function<void()> onChange;  // the text or its look changed

 private:
  void Toggle(bool TextFormat::*look);
  void ChangeLook(const std::function<void(TextFormat&)>& change);
  void Changed();

  RichText text_;
  int selectionStart_ = 0, selectionLength_ = 0;
  std::optional<TextFormat> typed_;  // the look of what is typed next, if a person chose one
};

}  // namespace pelorium
