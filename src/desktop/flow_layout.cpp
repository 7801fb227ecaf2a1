// Rows that wrap.
#include "desktop/flow_layout.h"

#include <QWidget>
#include <algorithm>

namespace pelorium {

FlowLayout::FlowLayout(QWidget* parent, int comfortableWidth)
    : QLayout(parent), comfortableWidth_(comfortableWidth) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() { qDeleteAll(items_); }

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

// Wide enough for the widest widget. The least height is asked for through heightForWidth.
QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : items_) {
    if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
  }
  return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, true);
}

QSize FlowLayout::Arrange(const QRect& rect, bool move) const {
  const int gap = spacing();
  int x = 0, y = 0, rowHeight = 0, widest = 0;
  QList<QLayoutItem*> row;
  const auto endRow = [&] {
    if (move) PlaceRow(row, rect.topLeft() + QPoint(0, y), rowHeight);
    row.clear();
  };
  for (QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (!row.isEmpty() && x + size.width() > rect.width()) {
      endRow();
      y += rowHeight + gap;
      x = rowHeight = 0;
    }
    row.append(item);
    x += size.width();
    widest = std::max(widest, x);
    x += gap;
    rowHeight = std::max(rowHeight, size.height());
  }
  endRow();
  return {widest, y + rowHeight};
}

void FlowLayout::PlaceRow(const QList<QLayoutItem*>& row, QPoint at, int height) const {
  for (QLayoutItem* item : row) {
    const QSize size = item->sizeHint();
    item->setGeometry(QRect(at + QPoint(0, (height - size.height()) / 2), size));
    at.rx() += size.width() + spacing();
  }
}

}  // namespace pelorium
