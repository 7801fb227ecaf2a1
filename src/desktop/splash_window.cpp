// The window that greets.
#include "desktop/splash_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/dispatcher.h"
#include "desktop/layout_builder.h"
#include "desktop/qt_text.h"

namespace pelorium {

SplashWindow::SplashWindow(Window& window, LayoutBuilder& builder, const ViewMap& views,
                           Dispatcher& dispatcher)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      window_(window),
      views_(views),
      dispatcher_(dispatcher) {
  setObjectName(ToQt(window.name()));
  setWindowTitle(ToQt(window.caption()));
  setFocusPolicy(Qt::StrongFocus);
  auto* around = new QVBoxLayout(this);
  around->addWidget(builder.Build(window, this));
  for (QWidget* part : findChildren<QWidget*>()) {
    part->installEventFilter(this);
    part->setFocusPolicy(Qt::NoFocus);
  }
}

void SplashWindow::Sync() {
  if (window_.visible() == isVisible()) return;
  setVisible(window_.visible());
  if (!window_.visible()) return;
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  move(screen.center() - rect().center());
  activateWindow();
  setFocus();
}

bool SplashWindow::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return true;
    case QEvent::MouseButtonRelease:
      PressControlOf(watched, {MouseButton::Left, {}});
      return true;
    default:
      return false;
  }
}

void SplashWindow::mouseReleaseEvent(QMouseEvent*) { PressControlOf(this, {}); }

void SplashWindow::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) PressControlOf(this, {});
}

void SplashWindow::PressControlOf(const QObject* widget, const Click& click) {
  if (Control* control = ControlOf(widget)) dispatcher_.Press(*control, click);
}

// The control under a click; where there is none that listens, the first one that does.
Control* SplashWindow::ControlOf(const QObject* widget) const {
  for (const auto& [control, view] : views_) {
    if (view->widget() == widget && control->onClick) return window_.Find(control->name());
  }
  for (Control* control : window_.controls()) {
    if (control->onClick) return control;
  }
  return nullptr;
}

}  // namespace pelorium
