// The window that greets: a click or a key anywhere on it goes on.
#pragma once

#include <QWidget>

#include "controls/window.h"
#include "desktop/control_view.h"

namespace pelorium {

class LayoutBuilder;

class SplashWindow : public QWidget {
 public:
  SplashWindow(Window& window, LayoutBuilder& builder, const ViewMap& views, Dispatcher& dispatcher);

  void Sync();
  // As a key does.
  void GoOn() { PressControlOf(this, {}); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PressControlOf(const QObject* widget, const Click& click);
  Control* ControlOf(const QObject* widget) const;

  Window& window_;
  const ViewMap& views_;
  Dispatcher& dispatcher_;
};

}  // namespace pelorium
