// The frame window.
#include "desktop/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <utility>

#include "controls/user_event.h"
#include "desktop/dispatcher.h"
#include "desktop/panel_area.h"
#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

namespace {

constexpr QSize kComfortableFrame(1360, 900);
constexpr int kNumberedWindows = 9;

}  // namespace

MainWindow::MainWindow(Window& frame, Dispatcher& dispatcher)
    : frame_(frame), dispatcher_(dispatcher), notice_(*new QLabel(this)), area_(*new PanelArea(this)) {
  setObjectName(ToQt(frame.name()));
  setCentralWidget(&area_);
  for (Control* control : frame.controls()) {
    if (control->kind() != ControlKind::MenuItem) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.isTopLevel()) AddMenu(item, *menuBar());
  }
  statusBar()->setSizeGripEnabled(true);
  notice_.setObjectName("notice");
  notice_.setTextFormat(Qt::PlainText);
  notice_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addPermanentWidget(&notice_, 1);
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  resize(kComfortableFrame.boundedTo(screen * 0.95));
  SyncFrame();
}

void MainWindow::AddMenu(MenuItem& item, QWidget& bar) {
  QAction* action = nullptr;
  if (item.children().empty()) {
    action = new QAction(this);
    connect(action, &QAction::triggered, this, [this, &item] { dispatcher_.Press(item, {}); });
  } else {
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    for (MenuItem* child : item.children()) AddMenu(*child, *menu);
    action = menu->menuAction();
  }
  action->setObjectName(ToQt(item.FullName()));
  bar.addAction(action);
  menu_[&item] = action;
  SyncMenuItem(item);
}

void MainWindow::SyncMenuItem(const Control& item) {
  const auto found = menu_.find(&item);
  if (found == menu_.end()) return;
  QAction& action = *found->second;
  action.setText(ToQt(item.caption()));
  action.setEnabled(item.enabled());
  action.setVisible(item.visible());
}

void MainWindow::ShowNotice(const std::string& text, NoticeKind kind) {
  if (isFaultShown_ && kind == NoticeKind::Result) return;  // the fault tells more
  isFaultShown_ = kind == NoticeKind::Fault;
  notice_.setStyleSheet(isFaultShown_ ? "color: #c00000" : "");
  notice_.setText(ToQt(text));
  notice_.setToolTip(ToQt(text));
}

void MainWindow::ForgetFault() {
  if (std::exchange(isFaultShown_, false)) notice_.clear();
}

void MainWindow::SyncFrame() {
  setWindowTitle(ToQt(frame_.caption()));
  if (isVisible() == frame_.visible()) return;
  setVisible(frame_.visible());
  if (frame_.visible()) activateWindow();
}

void MainWindow::Sync(WindowView& view) {
  const bool isShownAnew = view.TakeShow();
  if (view.IsModal() || !view.window().visible()) {
    area_.Shut(view);
  } else {
    if (isShownAnew || !area_.Holds(view)) area_.Open(view);
    area_.Rename(view);
  }
  ListWindows();
}

void MainWindow::PutWindowsInOrder() { area_.PutInOrder(); }

// The windows' menu ends with those that are open.
void MainWindow::ListWindows() {
  const auto found = menu_.find(frame_.windowsMenu());
  if (found == menu_.end()) return;
  QMenu& menu = *found->second->menu();
  for (QAction* action : std::exchange(windowActions_, {})) delete action;
  windowActions_.push_back(menu.addSeparator());
  int number = 0;
  for (WindowView* view : area_.open()) {
    QAction* action =
        menu.addAction(ToQt(view->window().caption()), this, [this, view] { area_.Open(*view); });
    action->setToolTip("brings it to the front");
    if (++number <= kNumberedWindows) action->setShortcut(QKeySequence(Qt::CTRL | (Qt::Key_0 + number)));
    windowActions_.push_back(action);
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (const Control* exit = frame_.closingControl()) dispatcher_.Press(*exit, {});
}

}  // namespace pelorium
