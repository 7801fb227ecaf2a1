// Lists on the screen.
#include "desktop/list_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <utility>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

ListWidget::ListWidget(ListBox& list, Dispatcher& dispatcher, QWidget* parent)
    : QListWidget(parent), list_(list), dispatcher_(dispatcher) {
  setUniformItemSizes(true);
  Adopt(*this, list, dispatcher);
  ListWidget::Sync();
}

void ListWidget::Sync() {
  const QSignalBlocker quiet(this);
  if (shown_ != list_.items()) {
    shown_ = list_.items();
    clear();
    for (const std::string& item : shown_) addItem(ToQt(item));
  }
  setCurrentRow(list_.index());
  SyncCommon(*this, list_);
}

void ListWidget::Pick(int row) {
  UserEvent event = EventFor(list_, UserAction::Drag);
  event.value = row;
  dispatcher_.Deliver(event);
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (std::exchange(wasDoubleClick_, false) || event->button() != Qt::LeftButton) return;
  if (const QListWidgetItem* hit = itemAt(event->position().toPoint())) Pick(row(hit));
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  QListWidget::mouseDoubleClickEvent(event);
  wasDoubleClick_ = true;
  if (itemAt(event->position().toPoint()) == nullptr) return;
  dispatcher_.Deliver(EventFor(list_, UserAction::DoubleClick));
}

// The arrow keys choose as a click does; Enter acts as a double click.
void ListWidget::keyPressEvent(QKeyEvent* event) {
  const int rowBefore = currentRow();
  QListWidget::keyPressEvent(event);
  if (currentRow() != rowBefore) Pick(currentRow());
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentRow() >= 0) {
    dispatcher_.Deliver(EventFor(list_, UserAction::DoubleClick));
  }
}

}  // namespace pelorium
