// A text box on the screen.
#pragma once

#include <QLineEdit>
#include <QTimer>

#include "controls/text_box.h"
#include "desktop/control_view.h"
#include "desktop/dispatcher.h"

namespace pelorium {

// What is typed is delivered as one text: when typing pauses, at Enter, or when the focus leaves. Until then
// the program's own changes of the text do not touch the box.
class TextWidget : public QLineEdit, public ControlView, private PendingInput {
 public:
  TextWidget(TextBox& box, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  // For rows of many short numbers.
  void BeCompact() { digitsInSight_ = kCompactDigits; }

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  static constexpr int kCompactDigits = 4;

  UserEvent TakeEvent() override;
  void ShowGround();
  void OnTyped();
  void DeliverTyped();

  TextBox& box_;
  Dispatcher& dispatcher_;
  int digitsInSight_;
  QTimer pause_;
  bool isPending_ = false;
};

}  // namespace pelorium
