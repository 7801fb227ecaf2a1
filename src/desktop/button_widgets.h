// Push buttons, check boxes and option buttons on the screen.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "controls/buttons.h"
#include "desktop/control_view.h"

namespace pelorium {

// Either mouse button presses it; the program may tell them apart.
class PushButtonWidget : public QPushButton, public ControlView {
 public:
  PushButtonWidget(PushButton& button, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  QSize sizeHint() const override;
  // For rows of many.
  void BeCompact() { isCompact_ = true; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Tell(MouseButton button, Keys keys);

  PushButton& button_;
  Dispatcher& dispatcher_;
  Keys keys_;  // held down with the mouse button that is being let go
  bool isCompact_ = false;
  bool wasTold_ = false;  // the press was told when the mouse button went down
};

// The mark is the control's value and nothing else: a click only tells the program.
class CheckBoxWidget : public QCheckBox, public ControlView {
 public:
  CheckBoxWidget(CheckBox& box, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

 protected:
  void nextCheckState() override {}

 private:
  CheckBox& box_;
};

class OptionWidget : public QRadioButton, public ControlView {
 public:
  OptionWidget(OptionButton& option, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

 protected:
  void nextCheckState() override {}

 private:
  OptionButton& option_;
};

}  // namespace pelorium
