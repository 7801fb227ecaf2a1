// What is mainly looked at: labels, titled boxes, progress bars.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include "controls/scroll_bar.h"
#include "desktop/control_view.h"

namespace pelorium {

// A label, or a small titled box that can be clicked on.
class LabelWidget : public QLabel, public ControlView {
 public:
  LabelWidget(Control& label, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  // Room for numbers of so many digits, however few there are.
  void KeepRoomFor(int digits) { setMinimumWidth(fontMetrics().horizontalAdvance('0') * digits); }
  // The words between its wide gaps stand above these, one above each.
  void StandAbove(std::vector<QWidget*> columns) { columns_ = std::move(columns); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void KeepRoom();

  Control& label_;
  std::vector<QWidget*> columns_;
};

// A titled box around other controls.
class GroupWidget : public QGroupBox, public ControlView {
 public:
  GroupWidget(Control& frame, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

 private:
  Control& frame_;
};

class ProgressWidget : public QProgressBar, public ControlView {
 public:
  ProgressWidget(ProgressBar& bar, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

 private:
  ProgressBar& bar_;
};

}  // namespace pelorium
