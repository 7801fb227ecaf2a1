// Lays widgets out in rows that wrap where the room ends, as words in a paragraph.
#pragma once

#include <QLayout>
#include <QList>

namespace pelorium {

class FlowLayout : public QLayout {
 public:
  // `comfortableWidth`: how wide the rows like to be, in pixels.
  FlowLayout(QWidget* parent, int comfortableWidth);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;

  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false).height(); }
  QSize minimumSize() const override;
  QSize sizeHint() const override { return Arrange(QRect(0, 0, comfortableWidth_, 0), false); }
  void setGeometry(const QRect& rect) override;

 private:
  // The room that the rows take in `rect`'s width; places the widgets if `move` is set.
  QSize Arrange(const QRect& rect, bool move) const;
  void PlaceRow(const QList<QLayoutItem*>& row, QPoint at, int height) const;

  QList<QLayoutItem*> items_;
  int comfortableWidth_;
};

}  // namespace pelorium
