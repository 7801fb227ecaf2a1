// A text box on the screen.
#include "desktop/text_widget.h"

#include <QApplication>
#include <QFocusEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "desktop/qt_text.h"

namespace pelorium {

namespace {

constexpr int kTypingPause = 350;  // milliseconds
constexpr int kLeastDigitsInSight = 8, kMostDigitsInSight = 16;

// Room for the text that the box starts with.
int DigitsInSight(const TextBox& box) {
  return std::clamp(static_cast<int>(box.text().size()), kLeastDigitsInSight, kMostDigitsInSight);
}

}  // namespace

TextWidget::TextWidget(TextBox& box, Dispatcher& dispatcher, QWidget* parent)
    : QLineEdit(parent), box_(box), dispatcher_(dispatcher), digitsInSight_(DigitsInSight(box)) {
  pause_.setSingleShot(true);
  pause_.setInterval(kTypingPause);
  connect(&pause_, &QTimer::timeout, this, [this] { DeliverTyped(); });
  connect(this, &QLineEdit::textEdited, this, [this] { OnTyped(); });
  connect(this, &QLineEdit::editingFinished, this, [this] { DeliverTyped(); });
  Adopt(*this, box, dispatcher);
  TextWidget::Sync();
}

void TextWidget::Sync() {
  const QString shown = ToQt(box_.text());
  if (!isPending_ && text() != shown) {
    const QSignalBlocker quiet(this);
    const int cursor = cursorPosition();
    setText(shown);
    setCursorPosition(hasFocus() ? cursor : 0);
  }
  ShowGround();
  SyncCommon(*this, box_);
}

void TextWidget::ShowGround() {
  const bool isField = box_.ground() == TextBox::Ground::Field;
  const QBrush ground = QApplication::palette().brush(isField ? QPalette::Base : QPalette::Button);
  QPalette own = palette();
  if (own.brush(QPalette::Base) == ground) return;
  own.setBrush(QPalette::Base, ground);
  setPalette(own);
}

QSize TextWidget::sizeHint() const {
  return {fontMetrics().horizontalAdvance('0') * digitsInSight_ + 14, QLineEdit::sizeHint().height()};
}

void TextWidget::OnTyped() {
  isPending_ = true;
  dispatcher_.AddPending(*this);
  pause_.start();
}

// A menu of the box itself takes the focus only for a moment.
void TextWidget::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  DeliverTyped();
  box_.FinishTyping();
}

void TextWidget::DeliverTyped() { dispatcher_.DeliverPending(*this); }

UserEvent TextWidget::TakeEvent() {
  isPending_ = false;
  pause_.stop();
  UserEvent event = EventFor(box_, UserAction::Type);
  event.text = FromQt(text());
  return event;
}

}  // namespace pelorium
