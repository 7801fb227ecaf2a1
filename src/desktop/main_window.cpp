// The frame window.
#include "desktop/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <algorithm>
#include <utility>

#include "controls/user_event.h"
#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

namespace {

constexpr QSize kComfortableFrame(1360, 900);
constexpr int kCascadeSteps = 6;
constexpr int kCascadeStep = 28;  // pixels: a title bar's height, so that each title stays in sight

// What a subwindow's title and edges add to its content.
QSize FrameAround(const QMdiSubWindow& sub) {
  const QMargins edges = sub.contentsMargins();
  return {edges.left() + edges.right(), edges.top() + edges.bottom()};
}

}  // namespace

MainWindow::MainWindow(Window& frame, Dispatcher& dispatcher)
    : frame_(frame), dispatcher_(dispatcher), notice_(*new QLabel(this)), area_(*new QMdiArea(this)) {
  setObjectName(ToQt(frame.name()));
  area_.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_.setBackground(palette().color(QPalette::Dark));
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
  if (view.IsModal()) return;
  if (view.window().visible()) {
    Show(view);
  } else if (view.subWindow() != nullptr && view.subWindow()->isVisible()) {
    view.subWindow()->hide();
  }
}

void MainWindow::Show(WindowView& view) {
  const bool isNew = view.subWindow() == nullptr;
  QMdiSubWindow& sub = view.AsSubWindow(*area_.viewport());
  sub.setWindowTitle(ToQt(view.window().caption()));
  if (isNew) {
    area_.addSubWindow(&sub, sub.windowFlags());
    PlaceFirst(view);
  }
  if (!view.TakeShow() && sub.isVisible()) return;
  sub.show();
  sub.raise();
  area_.setActiveSubWindow(&sub);
}

// Tool windows open over the options, down the left side, so that the picture they work on stays in sight.
void MainWindow::PlaceFirst(WindowView& view) {
  if (view.window().role() == WindowRole::Options) {
    options_ = &view;
    optionsGiven_ = view.subWindow()->geometry();
    FillArea();
    return;
  }
  if (view.window().role() == WindowRole::Page) {
    viewWindow_ = &view;
    viewGiven_ = view.subWindow()->geometry();
    FillArea();
    return;
  }
  const int shift = (1 + cascaded_++ % kCascadeSteps) * kCascadeStep;
  const QSize room = Room().size();
  QMdiSubWindow& sub = *view.subWindow();
  const QSize around = FrameAround(sub);
  const QSize size = view.ComfortableSize(QSize(room.width() * 2 / 3, room.height()) - around) + around;
  sub.setGeometry(QRect(QPoint(shift, std::min(shift, room.height() - size.height())), size));
}

bool MainWindow::MayBePlaced(const WindowView* view, const QRect& lastGiven) const {
  return view != nullptr && view->subWindow() != nullptr && view->subWindow()->geometry() == lastGiven;
}

void MainWindow::FillArea() {
  const QRect room = Room();
  int left = 0;
  if (MayBePlaced(options_, optionsGiven_)) {
    QMdiSubWindow& sub = *options_->subWindow();
    const QSize around = FrameAround(sub);
    const int comfortable = (options_->ComfortableSize(room.size() - around) + around).width();
    sub.setGeometry(0, 0, std::min(comfortable, room.width() * 45 / 100), room.height());
    optionsGiven_ = sub.geometry();
  }
  if (options_ != nullptr) left = std::min(optionsGiven_.right() + 1, room.width() / 2);
  if (MayBePlaced(viewWindow_, viewGiven_)) {
    viewWindow_->subWindow()->setGeometry(left, 0, room.width() - left, room.height());
    viewGiven_ = viewWindow_->subWindow()->geometry();
  }
}

QRect MainWindow::Room() const { return QRect(QPoint(0, 0), area_.maximumViewportSize()); }

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  layout()->activate();
  FillArea();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (const Control* exit = frame_.closingControl()) dispatcher_.Press(*exit, {});
}

}  // namespace pelorium
