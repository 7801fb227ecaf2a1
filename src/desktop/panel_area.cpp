// Pages and columns.
#include "desktop/panel_area.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QTabBar>
#include <algorithm>

#include "desktop/floating_panel.h"
#include "desktop/panel_column.h"
#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

namespace {

constexpr int kColumnWidth = 430;  // pixels, at first
constexpr int kWideFrame = 1700;   // pixels: from here on there is room for a column on either side
constexpr int kLeastPage = 320;

}  // namespace

PanelArea::PanelArea(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      left_(*new QSplitter(Qt::Vertical, this)),
      options_(*new PanelColumn("options", &left_)),
      tools_(*new PanelColumn("tools", &left_)),
      pages_(*new QTabWidget(this)) {
  pages_.setDocumentMode(true);
  pages_.setTabsClosable(true);
  pages_.setTabBarAutoHide(true);
  pages_.setMinimumWidth(kLeastPage);
  pages_.tabBar()->setFocusPolicy(Qt::NoFocus);
  connect(&pages_, &QTabWidget::tabCloseRequested, this,
          [this](int index) { openPages_[static_cast<std::size_t>(index)]->TellClosed(); });
  for (PanelColumn* column : {&options_, &tools_}) {
    column->onFloat = [this](WindowView& view) { Float(view); };
  }
  connect(
      qGuiApp, &QGuiApplication::screenRemoved, this, [this] { BringIntoSight(); }, Qt::QueuedConnection);
  setChildrenCollapsible(false);
  left_.setChildrenCollapsible(false);
  PutInOrder();
  HideEmptyColumns();
}

PanelArea::~PanelArea() = default;

PanelColumn* PanelArea::ColumnOf(const WindowView& view) {
  switch (view.window().role()) {
    case WindowRole::Options:
      return &options_;
    case WindowRole::Tool:
      return &tools_;
    default:
      return nullptr;
  }
}

void PanelArea::Open(WindowView& view) {
  if (const auto found = floating_.find(&view); found != floating_.end()) {
    found->second->show();
    found->second->raise();
    return;
  }
  PanelColumn* column = ColumnOf(view);
  if (column == nullptr) return OpenPage(view);
  column->Open(view);
  HideEmptyColumns();
}

void PanelArea::OpenPage(WindowView& view) {
  auto at = std::find(openPages_.begin(), openPages_.end(), &view);
  if (at == openPages_.end()) {
    openPages_.push_back(&view);
    at = openPages_.end() - 1;
    pages_.addTab(&view.Content(), ToQt(view.window().caption()));
  }
  const int index = static_cast<int>(at - openPages_.begin());
  pages_.setCurrentIndex(index);
}

void PanelArea::Shut(WindowView& view) {
  if (const auto found = floating_.find(&view); found != floating_.end()) return found->second->hide();
  if (PanelColumn* column = ColumnOf(view)) {
    column->Shut(view);
    return HideEmptyColumns();
  }
  const auto at = std::find(openPages_.begin(), openPages_.end(), &view);
  if (at == openPages_.end()) return;
  pages_.removeTab(static_cast<int>(at - openPages_.begin()));
  openPages_.erase(at);
  view.Content().hide();
}

void PanelArea::Float(WindowView& view) {
  const QPoint corner = ColumnOf(view)->mapToGlobal(QPoint(0, 0));
  ColumnOf(view)->Shut(view);
  HideEmptyColumns();
  auto& panel = floating_[&view];
  panel = std::make_unique<FloatingPanel>(view, window(), [this, &view] { PutBack(view); });
  panel->resize(view.ComfortableSize(size()) + QSize(0, panel->sizeHint().height() / 8));
  panel->move(corner + QPoint(kColumnWidth / 4, kColumnWidth / 8));
  panel->show();
}

// The dialog may be the one that asks: it goes when its event is over.
void PanelArea::PutBack(WindowView& view) {
  auto found = floating_.find(&view);
  if (found == floating_.end()) return;
  const bool wasOpen = found->second->isVisible();
  FloatingPanel* panel = found->second.release();
  floating_.erase(found);
  panel->hide();
  view.Content().setParent(nullptr);
  panel->deleteLater();
  if (wasOpen) Open(view);
}

// A screen went away, and panels may have stood on it.
void PanelArea::BringIntoSight() {
  for (const auto& [view, panel] : floating_) {
    if (QGuiApplication::screenAt(panel->geometry().center()) != nullptr) continue;
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    panel->resize(panel->size().boundedTo(room.size()));
    panel->move(room.center() - panel->rect().center());
  }
}

void PanelArea::PutInOrder() {
  std::vector<WindowView*> away;
  for (const auto& [view, panel] : floating_) away.push_back(view);
  for (WindowView* view : away) PutBack(*view);
  PlaceColumns();
}

// The tools change sides with the room there is.
void PanelArea::PlaceColumns() {
  isWide_ = width() > kWideFrame;
  QSplitter& home = isWide_ ? static_cast<QSplitter&>(*this) : left_;
  if (tools_.parentWidget() != &home) home.addWidget(&tools_);
  for (int i = 0; i < count(); ++i) setStretchFactor(i, widget(i) == &pages_ ? 1 : 0);
  const int rest = std::max(kLeastPage, width() - (isWide_ ? 2 : 1) * kColumnWidth);
  setSizes(isWide_ ? QList<int>{kColumnWidth, rest, kColumnWidth} : QList<int>{kColumnWidth, rest});
  left_.setSizes({height() * 2 / 5, height() * 3 / 5});  // the tool in use gets more
  HideEmptyColumns();
}

void PanelArea::HideEmptyColumns() {
  left_.setVisible(!options_.open().empty() || (!isWide_ && !tools_.open().empty()));
}

std::vector<WindowView*> PanelArea::open() const {
  std::vector<WindowView*> all = openPages_;
  for (const PanelColumn* column : {&options_, &tools_}) {
    all.insert(all.end(), column->open().begin(), column->open().end());
  }
  for (const auto& [view, panel] : floating_) {
    if (panel->isVisible()) all.push_back(view);
  }
  return all;
}

WindowView* PanelArea::front() const {
  for (WindowView* view : open()) {
    const bool isPage = view->window().role() == WindowRole::Page;
    if (!isPage && view->Content().isAncestorOf(QApplication::focusWidget())) return view;
  }
  const int page = pages_.currentIndex();
  if (page > 0) return openPages_[static_cast<std::size_t>(page)];
  for (const PanelColumn* column : {&tools_, &options_}) {
    if (WindowView* view = column->front()) return view;
  }
  return page < 0 ? nullptr : openPages_.front();
}

bool PanelArea::Holds(WindowView& view) const {
  const std::vector<WindowView*> all = open();
  return std::find(all.begin(), all.end(), &view) != all.end();
}

void PanelArea::Rename(WindowView& view) {
  const QString caption = ToQt(view.window().caption());
  if (const auto found = floating_.find(&view); found != floating_.end())
    found->second->setWindowTitle(caption);
  if (PanelColumn* column = ColumnOf(view)) column->Rename(view);
  const auto page = std::find(openPages_.begin(), openPages_.end(), &view);
  if (page != openPages_.end()) pages_.setTabText(static_cast<int>(page - openPages_.begin()), caption);
}

void PanelArea::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  const bool isFirst = event->oldSize().isEmpty();
  if (isFirst || isWide_ != (width() > kWideFrame)) PlaceColumns();
}

}  // namespace pelorium
