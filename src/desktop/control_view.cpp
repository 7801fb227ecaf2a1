// What all views of controls have in common.
#include "desktop/control_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

// Kinds whose widgets tell their clicks themselves.
bool TellsItsClicks(ControlKind kind) {
  return kind != ControlKind::Label && kind != ControlKind::TextBox && kind != ControlKind::Frame &&
         kind != ControlKind::ScrollBar && kind != ControlKind::ProgressBar;
}

bool TellsItsDoubleClicks(ControlKind kind) {
  return kind == ControlKind::PictureBox || kind == ControlKind::ListBox || kind == ControlKind::FileList ||
         kind == ControlKind::DirList;
}

class InputFilter : public QObject {
 public:
  InputFilter(QWidget& widget, Control& control, Dispatcher& dispatcher)
      : QObject(&widget), widget_(widget), control_(control), dispatcher_(dispatcher) {
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (!widget_.isEnabled()) return false;
    switch (event->type()) {
      case QEvent::MouseButtonRelease:
        OnRelease(static_cast<const QMouseEvent&>(*event));
        break;
      case QEvent::MouseButtonDblClick:
        OnDoubleClick(static_cast<const QMouseEvent&>(*event));
        break;
      case QEvent::KeyPress:
        OnKey(static_cast<const QKeyEvent&>(*event));
        break;
      default:
        break;
    }
    return false;
  }

 private:
  void OnRelease(const QMouseEvent& event) {
    if (TellsItsClicks(control_.kind()) || !control_.onClick || event.button() == Qt::MiddleButton) return;
    if (!widget_.rect().contains(event.position().toPoint())) return;
    const auto button = event.button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
    dispatcher_.Press(control_, {button, KeysHeld(event.modifiers())});
  }

  void OnDoubleClick(const QMouseEvent& event) {
    if (TellsItsDoubleClicks(control_.kind()) || !control_.onDoubleClick) return;
    if (event.button() == Qt::LeftButton) dispatcher_.Deliver(EventFor(control_, UserAction::DoubleClick));
  }

  void OnKey(const QKeyEvent& event) {
    if (!control_.onKey || event.text().isEmpty() || !event.text().at(0).isPrint()) return;
    if (event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::AltModifier))
      return;
    UserEvent key = EventFor(control_, UserAction::Key);
    key.text = FromQt(event.text());
    dispatcher_.Deliver(key);
  }

  QWidget& widget_;
  Control& control_;
  Dispatcher& dispatcher_;
};

}  // namespace

void SyncCommon(ControlView& view, const Control& control) { SyncCommon(view, control, control.visible()); }

void SyncCommon(ControlView& view, const Control& control, bool isShown) {
  QWidget& widget = *view.widget();
  const QString toolTip = ToQt(control.toolTip());
  for (QWidget* each : {&widget, static_cast<QWidget*>(view.before)}) {
    if (each == nullptr) continue;
    if (each->toolTip() != toolTip) {
      each->setToolTip(toolTip);
      each->setStatusTip(toolTip);
    }
    if (each->isEnabledTo(each->parentWidget()) != control.enabled()) each->setEnabled(control.enabled());
    if (each->isHidden() == isShown) each->setVisible(isShown);
  }
}

void Adopt(QWidget& widget, Control& control, Dispatcher& dispatcher) {
  widget.setObjectName(ToQt(control.FullName()));
  new InputFilter(widget, control, dispatcher);
}

Keys KeysHeld(Qt::KeyboardModifiers modifiers) {
  return {modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier),
          modifiers.testFlag(Qt::AltModifier)};
}

}  // namespace pelorium
