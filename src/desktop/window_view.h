// The widgets of one window of the program, wherever the frame shows them, or on their own while it is modal.
#pragma once

#include <QDialog>
#include <QScrollArea>

#include "controls/window.h"

namespace pelorium {

class Dispatcher;
class LayoutBuilder;

class WindowView {
 public:
  WindowView(Window& window, LayoutBuilder& builder, Dispatcher& dispatcher);
  WindowView(const WindowView&) = delete;
  WindowView& operator=(const WindowView&) = delete;

  Window& window() const { return window_; }

  // Built when they are first asked for; they belong to whatever shows them.
  QScrollArea& Content();
  QDialog& AsDialog(QWidget* parent);
  bool IsModal() const { return isModal_; }
  void SetModal(bool isModal) { isModal_ = isModal; }

  // True once for each Show of the window.
  bool TakeShow();
  // The size at which everything is in sight, held in `room`.
  QSize ComfortableSize(QSize room) const;
  void TellClosed();

 private:
  Window& window_;
  LayoutBuilder& builder_;
  Dispatcher& dispatcher_;
  QScrollArea* content_ = nullptr;
  QDialog* dialog_ = nullptr;
  bool isModal_ = false;
  int showsSeen_ = 0;
};

}  // namespace pelorium
