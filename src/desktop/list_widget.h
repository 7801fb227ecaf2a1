// Lists of texts, files and folders on the screen.
#pragma once

#include <QListWidget>

#include "controls/lists.h"
#include "desktop/control_view.h"

namespace pelorium {

class ListWidget : public QListWidget, public ControlView {
 public:
  ListWidget(ListBox& list, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  QSize sizeHint() const override { return {190, 130}; }
  QSize minimumSizeHint() const override { return {120, 80}; }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Pick(int row);

  ListBox& list_;
  Dispatcher& dispatcher_;
  std::vector<std::string> shown_;
  bool wasDoubleClick_ = false;  // its second letting go chooses nothing
};

}  // namespace pelorium
