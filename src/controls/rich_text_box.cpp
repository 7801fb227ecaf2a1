// The rich text box: edits of the selection.
#include "controls/rich_text_box.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"

namespace pelorium {

RichTextBox::RichTextBox(Window& owner, std::string name, std::string toolTip)
    : Control(owner, ControlKind::RichTextBox, std::move(name), {}, std::move(toolTip)) {}

void RichTextBox::SetText(RichText text) {
  text_ = std::move(text);
  SetSelection(0, 0);
  Changed();
}

void RichTextBox::SetSelection(int start, int length) {
  start = std::clamp(start, 0, text_.size());
  length = std::clamp(length, 0, text_.size() - start);
  if (start == selectionStart_ && length == selectionLength_) return;
  selectionStart_ = start;
  selectionLength_ = length;
  typed_.reset();
  NotifyChanged();
}

TextFormat RichTextBox::SelectionFormat() const {
  if (typed_) return *typed_;
  return text_.FormatAt(selectionLength_ > 0 ? selectionStart_ + 1 : selectionStart_);
}

void RichTextBox::Toggle(bool TextFormat::*look) {
  const bool on = selectionLength_ == 0
                      ? SelectionFormat().*look
                      : text_.AllOf(selectionStart_, selectionLength_,
                                    [look](const TextFormat& format) { return format.*look; });
  ChangeLook([look, on](TextFormat& format) { format.*look = !on; });
}

void RichTextBox::SetSize(double points) {
  const double size = std::clamp(RoundHalfEven(points * 2) / 2, kSmallestText, kLargestText);
  ChangeLook([size](TextFormat& format) { format.points = size; });
}

void RichTextBox::SetColour(Colour colour) {
  ChangeLook([colour](TextFormat& format) { format.colour = colour; });
}

void RichTextBox::ToggleBullet() {
  const int first = text_.ParagraphAt(selectionStart_);
  const int last = text_.ParagraphAt(selectionStart_ + std::max(0, selectionLength_ - 1));
  bool all = true;
  for (int paragraph = first; paragraph <= last; ++paragraph) all = all && text_.bullet(paragraph);
  for (int paragraph = first; paragraph <= last; ++paragraph) text_.SetBullet(paragraph, !all);
  Changed();
}

void RichTextBox::ReplaceRange(int start, int length, std::string_view text) {
  SetSelection(start, length);
  const int added = text_.Replace(selectionStart_, selectionLength_, text, SelectionFormat());
  SetSelection(selectionStart_ + added, 0);
  Changed();
}

void RichTextBox::ChangeLook(const std::function<void(TextFormat&)>& change) {
  if (selectionLength_ == 0) {
    TextFormat typed = SelectionFormat();
    change(typed);
    typed_ = typed;
    NotifyChanged();
    return;
  }
  text_.ForRange(selectionStart_, selectionLength_, change);
  Changed();
}

void RichTextBox::Changed() {
  NotifyChanged();
  if (onChange) onChange();
}

}  // namespace pelorium
