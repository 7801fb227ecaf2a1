// A scroll bar on the screen.
#include "desktop/bar_widget.h"

#include <QPainter>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace pelorium {

constexpr int kShortestBar = 100;  // pixels; room for the two arrows and a thumb that moves visibly

BarWidget::BarWidget(ScrollBar& bar, Qt::Orientation orientation, Dispatcher& dispatcher, QWidget* parent)
    : QScrollBar(orientation, parent), bar_(bar), dispatcher_(dispatcher) {
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  if (orientation == Qt::Horizontal) {
    setMinimumWidth(kShortestBar);
  } else {
    setMinimumHeight(kShortestBar);
  }
  connect(this, &QScrollBar::valueChanged, this, [this] { OnMoved(); });
  Adopt(*this, bar, dispatcher);
  BarWidget::Sync();
}

void BarWidget::Sync() {
  const QSignalBlocker quiet(this);
  const bool isSwapped = bar_.max() < bar_.min();
  setRange(std::min(bar_.min(), bar_.max()), std::max(bar_.min(), bar_.max()));
  setInvertedAppearance(isSwapped);
  setInvertedControls(isSwapped);
  setSingleStep(std::max(1, bar_.smallChange));
  setPageStep(std::max(1, bar_.largeChange));
  if (!isPending_) setValue(bar_.value());
  if (valueLabel_ != nullptr) valueLabel_->setNum(bar_.value());
  SyncCommon(*this, bar_);
}

void BarWidget::ShowValueIn(QLabel* label) {
  valueLabel_ = label;
  Sync();
}

void BarWidget::OnMoved() {
  if (std::exchange(isPending_, true)) return;
  dispatcher_.AddPending(*this);
  QTimer::singleShot(0, this, [this] { dispatcher_.DeliverPending(*this); });
}

UserEvent BarWidget::TakeEvent() {
  isPending_ = false;
  UserEvent event = EventFor(bar_, UserAction::Drag);
  event.value = value();
  return event;
}

// In a window that scrolls, the wheel scrolls the window unless the bar was chosen first: else every bar that
// passes under the mouse would change the model.
void BarWidget::wheelEvent(QWheelEvent* event) {
  if (!hasFocus() && StandsInScrolledWindow()) {
    event->ignore();
    return;
  }
  QScrollBar::wheelEvent(event);
}

bool BarWidget::StandsInScrolledWindow() const {
  for (const QWidget* each = parentWidget(); each != nullptr; each = each->parentWidget()) {
    if (const auto* area = qobject_cast<const QScrollArea*>(each)) {
      return area->verticalScrollBar()->maximum() > 0;
    }
  }
  return false;
}

// The style has no mark for a scroll bar that listens to the keyboard.
void BarWidget::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace pelorium
