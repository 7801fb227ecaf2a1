// The frame: menu bar, the area in which the windows stand, and a line that tells about what is under the
// mouse.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <unordered_map>

#include "controls/buttons.h"
#include "controls/window.h"
#include "windows/shell/notices.h"

class QAction;
class QLabel;

namespace pelorium {

class Dispatcher;
class WindowView;

class MainWindow : public QMainWindow {
 public:
  MainWindow(Window& frame, Dispatcher& dispatcher);

  // Shows or hides the window's subwindow as the window says; brings it to the front at each Show.
  void Sync(WindowView& view);
  void SyncFrame();
  void SyncMenuItem(const Control& item);

  // In the line below the windows; a fault in red, until the next event.
  void ShowNotice(const std::string& text, NoticeKind kind);
  void ForgetFault();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddMenu(MenuItem& item, QWidget& bar);
  void Show(WindowView& view);
  void PlaceFirst(WindowView& view);
  void FillArea();
  bool MayBePlaced(const WindowView* view, const QRect& lastGiven) const;
  QRect Room() const;

  Window& frame_;
  Dispatcher& dispatcher_;
  QLabel& notice_;  // behind it the tool tip of what is under the mouse comes and goes
  bool isFaultShown_ = false;
  QMdiArea& area_;
  std::unordered_map<const Control*, QAction*> menu_;

  // The two windows that fill the area as long as nobody moves them: options at the left, the view beside
  // them.
  WindowView* options_ = nullptr;
  WindowView* viewWindow_ = nullptr;
  QRect optionsGiven_, viewGiven_;
  int cascaded_ = 0;
};

}  // namespace pelorium
