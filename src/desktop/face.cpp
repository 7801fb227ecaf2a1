// The whole face.
#include "desktop/face.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "desktop/picture_widget.h"
#include "desktop/qt_text.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/help_me.h"
#include "windows/frame/status_line.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"

namespace pelorium {

namespace {

constexpr std::chrono::milliseconds kBetweenProgress(50);

Window& Needed(App& app, WindowRole role) {
  for (Window* window : app.windows()) {
    if (window->role() == role) return *window;
  }
  throw Fault(FaultKind::InvalidValue, "a window is missing");
}

}  // namespace

Face::Face(App& app, Dispatcher& dispatcher)
    : app_(app),
      dispatcher_(dispatcher),
      menus_([this](MenuItem& item) { PressItem(item); }),
      builder_(dispatcher, views_, menus_) {
  app_.host.listener = this;
  dispatcher_.onDelivered = [this] { Refresh(); };
  dispatcher_.onDelivering = [this] {
    frame_->ForgetFault();
    busyCursor_.Restart();
  };
  Window& frameWindow = Needed(app, WindowRole::Frame);
  Window& splashWindow = Needed(app, WindowRole::Splash);
  for (const Window* window : app_.windows()) {
    if (window->role() == WindowRole::Page) menus_.LeaveLettersOf(*window);
  }
  frame_ = std::make_unique<MainWindow>(frameWindow, dispatcher_, menus_);
  app_.notices.onNotice = [this](const std::string& text, NoticeKind kind) {
    frame_->ShowNotice(text, kind);
  };
  splash_ = std::make_unique<SplashWindow>(splashWindow, builder_, views_, dispatcher_);
  for (Window* window : app_.windows()) {
    if (window == &frameWindow || window == &splashWindow) continue;
    windowViews_.push_back(std::make_unique<WindowView>(*window, builder_, dispatcher_));
    if (window->visible()) changedWindows_.push_back(window);
  }
}

Face::~Face() {
  app_.host.listener = nullptr;
  app_.notices.onNotice = nullptr;
  dispatcher_.onDelivered = dispatcher_.onDelivering = nullptr;
}

void Face::Begin() {
  Window& splash = Needed(app_, WindowRole::Splash);
  if (!splash.visible() && !app_.started) splash.Show();
  Refresh();
}

void Face::ControlChanged(Control& control) {
  changedControls_.insert(&control);
  if (control.kind() == ControlKind::ProgressBar) ShowProgress(control);
  if (control.kind() == ControlKind::PictureBox) {
    if (PictureBox* hidden = static_cast<PictureBox&>(control).SeenInPlaceOf()) ShowProgress(*hidden);
  }
  ScheduleRefresh();
}

void Face::WindowChanged(Window& window) {
  changedWindows_.erase(std::remove(changedWindows_.begin(), changedWindows_.end(), &window),
                        changedWindows_.end());
  changedWindows_.push_back(&window);
  ScheduleRefresh();
}

// Changes outside an event are rare (a timer of the program's own); they are shown all the same.
void Face::ScheduleRefresh() {
  if (std::exchange(isRefreshDue_, true)) return;
  QTimer::singleShot(0, frame_.get(), [this] {
    if (isRefreshDue_) Refresh();
  });
}

void Face::Refresh() {
  isRefreshDue_ = false;
  busyCursor_.Restart();
  RefreshControls();
  RefreshWindows();
  RefreshPictures();
  menus_.SyncLacks();
  if (app_.started) frame_->ShowStatus(MouseHint(app_), StatusLine(app_));
  // Not quit(): it asks the windows, and those leave their closing to the program.
  if (app_.exitRequested) QCoreApplication::exit();
}

void Face::RefreshControls() {
  for (Control* control : std::exchange(changedControls_, {})) {
    if (control->kind() == ControlKind::MenuItem) {
      menus_.Sync(*control);
    } else if (const auto found = views_.find(control); found != views_.end()) {
      found->second->Sync();
    }
  }
}

void Face::RefreshWindows() {
  if (changedWindows_.empty()) return;
  splash_->Sync();
  frame_->SyncFrame();
  for (const Window* window : std::exchange(changedWindows_, {})) {
    if (WindowView* view = ViewOf(*window)) frame_->Sync(*view);
  }
}

void Face::RefreshPictures() {
  for (const auto& [control, view] : views_) {
    if (control->kind() == ControlKind::PictureBox) static_cast<PictureWidget*>(view)->ShowPresent();
  }
}

void Face::ShowProgress(Control& control) {
  const auto found = views_.find(&control);
  const auto now = std::chrono::steady_clock::now();
  if (found == views_.end() || now - lastProgress_ < kBetweenProgress) return;
  lastProgress_ = now;
  busyCursor_.ShowIfLate();
  DrawNow(app_);
  found->second->Sync();
  found->second->widget()->repaint();
}

// An item that shows the help opens it at what the person has in front.
void Face::PressItem(MenuItem& item) {
  HelpMe& help = app_.frame->helpme;
  const Window* front = frame_->front();
  const int shows = help.shows();
  dispatcher_.Press(item, {});
  if (help.shows() == shows || front == nullptr || front == &help) return;
  help.ShowSection(front->caption());
  Refresh();
}

WindowView* Face::ViewOf(const Window& window) {
  for (const auto& view : windowViews_) {
    if (&view->window() == &window) return view.get();
  }
  return nullptr;
}

void Face::RunModal(Window& window) {
  WindowView* view = ViewOf(window);
  if (view == nullptr) return;
  view->SetModal(true);
  window.Show();
  Refresh();
  QDialog& dialog = view->AsDialog(frame_.get());
  dialog.setWindowTitle(ToQt(window.caption()));
  dialog.resize(view->ComfortableSize(frame_->size()));
  dialog.show();
  QEventLoop loop;
  const auto previous = std::exchange(dispatcher_.onDelivered, [this, &window, &loop] {
    Refresh();
    if (!window.visible()) loop.quit();
  });
  dispatcher_.RunNested([&] { loop.exec(); });
  dispatcher_.onDelivered = previous;
  dialog.hide();
  window.Hide();
  view->TakeShow();
  view->SetModal(false);
}

}  // namespace pelorium
