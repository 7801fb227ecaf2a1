// A scroll bar on the screen.
#pragma once

#include <QLabel>
#include <QScrollBar>

#include "controls/scroll_bar.h"
#include "desktop/control_view.h"
#include "desktop/dispatcher.h"

namespace pelorium {

// Moves are delivered when the toolkit has nothing else to do, the newest value only: a handler that is
// slower than the hand never works off a queue of values that are past.
class BarWidget : public QScrollBar, public ControlView, private PendingInput {
 public:
  BarWidget(ScrollBar& bar, Qt::Orientation orientation, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

  // A bar that no box mirrors shows its value in a label beside it.
  void ShowValueIn(QLabel* label);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  UserEvent TakeEvent() override;
  void OnMoved();
  bool StandsInScrolledWindow() const;

  ScrollBar& bar_;
  Dispatcher& dispatcher_;
  QLabel* valueLabel_ = nullptr;
  bool isPending_ = false;
};

}  // namespace pelorium
