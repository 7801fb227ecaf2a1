// A text with looks on the screen.
#pragma once

#include <QTextEdit>
#include <vector>

#include "controls/rich_text_box.h"
#include "desktop/control_view.h"

namespace pelorium {

// The control holds the text; the widget tells it each stretch that a person replaced and each new selection,
// and builds its document anew only when it does not show what the control holds.
class RichTextWidget : public QTextEdit, public ControlView {
 public:
  RichTextWidget(RichTextBox& box, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  QSize sizeHint() const override { return {560, 380}; }

 private:
  void OnTextChanged();
  void OnSelectionChanged();
  void ShowText();
  void ShowSelection();
  std::vector<TextParagraph> ShownParagraphs() const;

  RichTextBox& box_;
  bool isSyncing_ = false;
};

}  // namespace pelorium
