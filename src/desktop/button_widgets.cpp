// Buttons of all sorts on the screen.
#include "desktop/button_widgets.h"

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
  const QString caption = CaptionToShow(control.caption());
  if (view.text() != caption) view.setText(caption);
  view.setChecked(control.value());
  SyncCommon(view, control);
}

}  // namespace

PushButtonWidget::PushButtonWidget(PushButton& button, Dispatcher& dispatcher, QWidget* parent)
    : QPushButton(parent), button_(button), dispatcher_(dispatcher) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] {
    dispatcher_.Press(button_, {MouseButton::Left, std::exchange(keys_, {})});
  });
  Adopt(*this, button, dispatcher);
  PushButtonWidget::Sync();
}

void PushButtonWidget::Sync() {
  const QString caption = CaptionToShow(button_.caption());
  if (text() != caption) setText(caption);
  SyncCommon(*this, button_);
}

// Narrower than the style's own: many buttons carry one letter and stand in rows.
QSize PushButtonWidget::sizeHint() const {
  const QSize usual = QPushButton::sizeHint();
  const QSize ofText = fontMetrics().size(Qt::TextShowMnemonic, text());
  return {ofText.width() + 22, std::max(usual.height(), ofText.height() + 10)};
}

void PushButtonWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) {
    QPushButton::mousePressEvent(event);
    return;
  }
  setFocus(Qt::MouseFocusReason);
  setDown(true);
  event->accept();
}

void PushButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) {
    keys_ = KeysHeld(event->modifiers());
    QPushButton::mouseReleaseEvent(event);
    keys_ = {};
    return;
  }
  setDown(false);
  event->accept();
  if (!hitButton(event->position().toPoint())) return;
  dispatcher_.Press(button_, {MouseButton::Right, KeysHeld(event->modifiers())});
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
