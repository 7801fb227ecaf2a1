// The frame: menu bar, the pages and panels, and a line that tells what happened.
#pragma once

#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <vector>

#include "controls/window.h"
#include "windows/shell/notices.h"

class QAction;
class QLabel;

namespace pelorium {

class Dispatcher;
class MenuActions;
class PanelArea;
class WindowView;

class MainWindow : public QMainWindow {
 public:
  MainWindow(Window& frame, Dispatcher& dispatcher, MenuActions& menus);

  // Shows or hides the window as it says; brings it to the front at each Show.
  void Sync(WindowView& view);
  void PutWindowsInOrder();
  // A person dropped a file on the frame.
  std::function<void(const std::filesystem::path&)> onFileDropped;
  void SyncFrame();
  // What the person has in front; nullptr if nothing is open.
  const Window* front() const;

  // In the line below the windows; a fault in red, until the next event.
  void ShowNotice(const std::string& text, NoticeKind kind);
  void ForgetFault();
  // What is worked on and what the mouse does, at the right of that line.
  void ShowStatus(const std::string& hint, const std::string& status);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ListWindows();

  Window& frame_;
  Dispatcher& dispatcher_;
  QLabel& notice_;  // behind it the tool tip of what is under the mouse comes and goes
  QLabel &hint_, &status_;
  bool isFaultShown_ = false;
  PanelArea& area_;
  MenuActions& menus_;
  std::vector<QAction*> windowActions_;  // of the open windows, Ctrl+1 to Ctrl+9
};

}  // namespace pelorium
