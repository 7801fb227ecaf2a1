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

 private:
  void KeepRoom();

  Control& label_;
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
