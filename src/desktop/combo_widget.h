// Lists that drop down, on the screen.
#pragma once

#include <QComboBox>

#include "controls/combo_box.h"
#include "desktop/control_view.h"

namespace pelorium {

class ComboWidget : public QComboBox, public ControlView {
 public:
  ComboWidget(ComboBox& combo, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;

 private:
  ComboBox& combo_;
  Dispatcher& dispatcher_;
  std::vector<std::string> shown_;
};

}  // namespace pelorium
