// The frame window.
#include "desktop/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "controls/user_event.h"
#include "desktop/dispatcher.h"
#include "desktop/menu_actions.h"
#include "desktop/panel_area.h"
#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

namespace {

constexpr QSize kComfortableFrame(1360, 900);
constexpr int kNumberedWindows = 9;
constexpr int kStatusGap = 8;  // pixels

}  // namespace

MainWindow::MainWindow(Window& frame, Dispatcher& dispatcher, MenuActions& menus)
    : frame_(frame),
      dispatcher_(dispatcher),
      notice_(*new QLabel(this)),
      hint_(*new QLabel(this)),
      status_(*new QLabel(this)),
      area_(*new PanelArea(this)),
      menus_(menus) {
  setObjectName(ToQt(frame.name()));
  setCentralWidget(&area_);
  setAcceptDrops(true);
  menus_.FillBar(frame, *menuBar());
  statusBar()->setSizeGripEnabled(true);
  notice_.setObjectName("notice");
  notice_.setTextFormat(Qt::PlainText);
  notice_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addPermanentWidget(&notice_, 1);
  for (auto [label, name] : {std::pair{&hint_, "hint"}, {&status_, "status"}}) {
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(kStatusGap, 0, kStatusGap, 0);
    statusBar()->addPermanentWidget(label);
  }
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  resize(kComfortableFrame.boundedTo(screen * 0.95));
  SyncFrame();
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

void MainWindow::ShowStatus(const std::string& hint, const std::string& status) {
  for (auto [label, text] : {std::pair{&hint_, &hint}, {&status_, &status}}) {
    const QString shown = ToQt(*text);
    if (label->text() != shown) label->setText(shown);
  }
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

const Window* MainWindow::front() const {
  const WindowView* view = area_.front();
  return view == nullptr ? nullptr : &view->window();
}

void MainWindow::PutWindowsInOrder() { area_.PutInOrder(); }

// The windows' menu ends with those that are open.
void MainWindow::ListWindows() {
  const MenuItem* item = frame_.windowsMenu();
  const QAction* head = menus_.ActionOf(item);
  if (head == nullptr) return;
  QMenu& menu = *head->menu();
  for (QAction* action : std::exchange(windowActions_, {})) delete action;
  windowActions_.push_back(menu.addSeparator());
  int number = 0;
  for (WindowView* view : area_.open()) {
    QAction* action =
        menu.addAction(ToQt(view->window().caption()), this, [this, view] { area_.Open(*view); });
    action->setToolTip("brings it to the front");
    if (++number <= kNumberedWindows) {
      action->setShortcut(QKeySequence(ToQt(item->shortcut + std::to_string(number))));
      action->setShortcutContext(Qt::ApplicationShortcut);
    }
    windowActions_.push_back(action);
  }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

// Whoever gave the files waits until the drop is over: a handler may open a dialog.
void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  for (const QUrl& url : event->mimeData()->urls()) {
    if (!url.isLocalFile()) continue;
    const std::filesystem::path path = QFile::encodeName(url.toLocalFile()).toStdString();
    QTimer::singleShot(0, this, [this, path] { onFileDropped(path); });
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (const Control* exit = frame_.closingControl()) dispatcher_.Press(*exit, {});
}

}  // namespace pelorium
