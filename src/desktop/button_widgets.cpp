// Buttons of all sorts on the screen.
#include "desktop/button_widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <utility>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

// Caption and mark of a button that can be checked.
template <typename View, typename Source>
void SyncChecked(View& view, const Source& control) {
  const QSignalBlocker quiet(&view);
  const QString caption = ToQt(control.caption());
  if (view.text() != caption) view.setText(caption);
  view.setChecked(control.value());
  SyncCommon(view, control);
}

}  // namespace

PushButtonWidget::PushButtonWidget(PushButton& button, Dispatcher& dispatcher, QWidget* parent)
    : QPushButton(parent), button_(button), dispatcher_(dispatcher) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] {
    if (!std::exchange(wasTold_, false)) Tell(MouseButton::Left, std::exchange(keys_, {}));
  });
  Adopt(*this, button, dispatcher);
  PushButtonWidget::Sync();
}

void PushButtonWidget::Sync() {
  const QString caption = ToQt(button_.caption());
  if (text() != caption) setText(caption);
  SyncCommon(*this, button_);
}

// Narrower than the style's own: many buttons carry one letter and stand in rows.
QSize PushButtonWidget::sizeHint() const {
  const QSize usual = QPushButton::sizeHint();
  const QSize ofText = fontMetrics().size(Qt::TextShowMnemonic, isCompact_ ? text().trimmed() : text());
  if (isCompact_) return ofText + QSize(12, 6);
  return {ofText.width() + 22, std::max(usual.height(), ofText.height() + 10)};
}

void PushButtonWidget::Tell(MouseButton button, Keys keys) { dispatcher_.Press(button_, {button, keys}); }

void PushButtonWidget::mousePressEvent(QMouseEvent* event) {
  const bool isRight = event->button() == Qt::RightButton;
  wasTold_ = button_.actsOnMouseDown && (isRight || event->button() == Qt::LeftButton);
  if (isRight) {
    setFocus(Qt::MouseFocusReason);
    setDown(true);
    event->accept();
  } else {
    QPushButton::mousePressEvent(event);
  }
  if (wasTold_) Tell(isRight ? MouseButton::Right : MouseButton::Left, KeysHeld(event->modifiers()));
}

void PushButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) {
    keys_ = KeysHeld(event->modifiers());
    QPushButton::mouseReleaseEvent(event);
    keys_ = {};
  } else {
    setDown(false);
    event->accept();
    const bool isClick = !wasTold_ && hitButton(event->position().toPoint());
    if (isClick) Tell(MouseButton::Right, KeysHeld(event->modifiers()));
  }
  wasTold_ = false;
}

// Enter presses as Space does.
void PushButtonWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

CheckBoxWidget::CheckBoxWidget(CheckBox& box, Dispatcher& dispatcher, QWidget* parent)
    : QCheckBox(parent), box_(box) {
  connect(this, &QCheckBox::clicked, this, [&box, &dispatcher] { dispatcher.Press(box, {}); });
  Adopt(*this, box, dispatcher);
  CheckBoxWidget::Sync();
}

void CheckBoxWidget::Sync() { SyncChecked(*this, box_); }

OptionWidget::OptionWidget(OptionButton& option, Dispatcher& dispatcher, QWidget* parent)
    : QRadioButton(parent), option_(option) {
  setAutoExclusive(false);
  connect(this, &QRadioButton::clicked, this, [&option, &dispatcher] { dispatcher.Press(option, {}); });
  Adopt(*this, option, dispatcher);
  OptionWidget::Sync();
}

void OptionWidget::Sync() { SyncChecked(*this, option_); }

}  // namespace pelorium
