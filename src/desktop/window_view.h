// Shows one window of the program: inside the frame, or on its own while it is modal.
#pragma once

#include <QDialog>
#include <QMdiSubWindow>
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

  // The widgets are built when they are first asked for.
  QMdiSubWindow& AsSubWindow(QWidget& parent);
  QDialog& AsDialog(QWidget* parent);
  // The subwindow, or nullptr when the window was never shown in the frame.
  QMdiSubWindow* subWindow() const { return subWindow_; }
  bool IsModal() const { return isModal_; }
  void SetModal(bool isModal) { isModal_ = isModal; }

  // True once for each Show of the window.
  bool TakeShow();
  // The size at which everything is in sight, held in `room`.
  QSize ComfortableSize(QSize room) const;
  void TellClosed();

 private:
  QScrollArea& Content();

  Window& window_;
  LayoutBuilder& builder_;
  Dispatcher& dispatcher_;
  QScrollArea* content_ = nullptr;  // belongs to whatever shows it
  QMdiSubWindow* subWindow_ = nullptr;
  QDialog* dialog_ = nullptr;
  bool isModal_ = false;
  int showsSeen_ = 0;
};

}  // namespace pelorium
