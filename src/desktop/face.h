// The whole face: keeps what is on the screen the same as what the program holds.
#pragma once

#include <chrono>
#include <memory>
#include <unordered_set>
#include <vector>

#include "controls/window.h"
#include "desktop/busy_cursor.h"
#include "desktop/dispatcher.h"
#include "desktop/layout_builder.h"
#include "desktop/main_window.h"
#include "desktop/menu_actions.h"
#include "desktop/splash_window.h"
#include "desktop/window_view.h"

namespace pelorium {

class App;

// Changes are noted while handlers run and shown when the event is over; only progress bars, and pictures
// that stand in for hidden ones, are repainted before.
class Face : public ControlListener {
 public:
  Face(App& app, Dispatcher& dispatcher);
  ~Face() override;

  // Shows the first window.
  void Begin();
  // Shows what changed since the last time.
  void Refresh();
  // Shows a window on its own until the program or the person closes it.
  void RunModal(Window& window);

  MainWindow& frame() { return *frame_; }
  SplashWindow& splash() { return *splash_; }

  void ControlChanged(Control& control) override;
  void WindowChanged(Window& window) override;

 private:
  void ScheduleRefresh();
  void RefreshControls();
  void RefreshWindows();
  void RefreshPictures();
  void ShowProgress(Control& control);
  WindowView* ViewOf(const Window& window);
  void PressItem(MenuItem& item);

  App& app_;
  Dispatcher& dispatcher_;
  ViewMap views_;
  MenuActions menus_;
  LayoutBuilder builder_;
  std::unique_ptr<MainWindow> frame_;
  std::unique_ptr<SplashWindow> splash_;
  std::vector<std::unique_ptr<WindowView>> windowViews_;

  std::unordered_set<Control*> changedControls_;
  std::vector<Window*> changedWindows_;  // in the order of their last change
  std::chrono::steady_clock::time_point lastProgress_;
  BusyCursor busyCursor_;
  bool isRefreshDue_ = false;
};

}  // namespace pelorium
