// A panel that a person took out of its column: a window of its own in front of the frame.
#pragma once

#include <QDialog>
#include <functional>

namespace pelorium {

class WindowView;

class FloatingPanel : public QDialog {
 public:
  // `putBack` is what its button does.
  FloatingPanel(WindowView& view, QWidget* frame, std::function<void()> putBack);

  void reject() override;  // Escape closes the panel

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  WindowView& view_;
};

}  // namespace pelorium
