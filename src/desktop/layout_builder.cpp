// Builds the widgets of a window from its layout.
#include "desktop/layout_builder.h"

#include <QGroupBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "desktop/bar_widget.h"
#include "desktop/button_widgets.h"
#include "desktop/flow_layout.h"
#include "desktop/label_widgets.h"
#include "desktop/menu_actions.h"
#include "desktop/picture_widget.h"
#include "desktop/qt_text.h"
#include "desktop/text_widget.h"
#include "desktop/view_factory.h"

namespace pelorium {

namespace {

constexpr int kGap = 6;                // pixels between widgets
constexpr int kFrameMargin = 4;        // pixels
constexpr int kCompactGap = 3;         // pixels: where every row counts
constexpr int kCompactNumber = 6;      // digits
constexpr int kTriangle = 18;          // pixels
constexpr int kComfortableFlow = 360;  // pixels: a few buttons a row
constexpr int kWidestLabel = 190;      // pixels: longer texts before a bar wrap
constexpr int kWidestTitle = 340;      // pixels: longer titles of frames wrap
constexpr int kPanelRoom = 408;        // pixels: a panel's width at first without its scroll bar and margins
constexpr int kLeastScrolled = 160;    // pixels: of a picture that scrolls
constexpr int kRowHeight = 22;         // pixels: rows with a box and rows without look alike
constexpr int kLabelColumn = BarGrids::kLabelColumn, kBarColumn = BarGrids::kBarColumn,
              kFirstBoxColumn = BarGrids::kFirstBoxColumn;

bool IsAligned(const LayoutItem& item) {
  return item.kind == LayoutKind::BarRow || (item.kind == LayoutKind::Single && !item.title.empty());
}

// A control that keeps its size however wide its window is.
bool IsSmall(const LayoutItem& item) {
  if (item.kind != LayoutKind::Single || item.stretches) return false;
  const ControlKind kind = item.controls.at(0)->kind();
  return kind == ControlKind::Label || kind == ControlKind::TextBox || kind == ControlKind::PushButton ||
         kind == ControlKind::CheckBox || kind == ControlKind::OptionButton;
}

int ColumnsOf(const std::vector<LayoutItem>& items) {
  std::size_t columns = kFirstBoxColumn;
  for (const LayoutItem& item : items) {
    if (item.kind == LayoutKind::BarRow)
      columns = std::max<std::size_t>(columns, std::max<std::size_t>(3, item.controls.size() + 1));
  }
  return static_cast<int>(columns);
}

QLabel* MakeText(const std::string& text, QWidget* parent) {
  auto* label = new QLabel(ToQt(text), parent);
  if (label->sizeHint().width() > kWidestLabel) {
    label->setWordWrap(true);
    label->setFixedWidth(kWidestLabel);
  }
  return label;
}

template <typename LayoutType>
LayoutType* WithoutMargins(LayoutType* layout) {
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  return layout;
}

FlowLayout* MakeFlowLayout(QWidget* holder) {
  auto* layout = new FlowLayout(holder, kComfortableFlow);
  layout->setSpacing(kGap);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  holder->setSizePolicy(policy);
  return layout;
}

// A text and its value. Rows that wrap anew while numbers grow would resize the picture below them.
void TightenPair(QObject& pair) {
  for (QObject* part : pair.children()) {
    auto* value = dynamic_cast<LabelWidget*>(part);
    if (value == nullptr) continue;
    value->KeepRoomFor(kCompactNumber);
    static_cast<QWidget&>(pair).layout()->setSpacing(kCompactGap);
  }
}

// Small buttons and boxes, close together.
void Tighten(QWidget& holder) {
  if (QLayout* layout = holder.layout()) layout->setSpacing(layout->spacing() * kCompactGap / kGap);
  for (QObject* child : holder.children()) {
    if (auto* button = dynamic_cast<PushButtonWidget*>(child)) button->BeCompact();
    if (auto* box = dynamic_cast<TextWidget*>(child)) box->BeCompact();
    TightenPair(*child);
  }
}

bool AnyStretches(const std::vector<LayoutItem>& items) {
  return std::any_of(items.begin(), items.end(), [](const LayoutItem& item) { return item.stretches; });
}

}  // namespace

QWidget* LayoutBuilder::Build(const Window& window, QWidget* parent) {
  auto* content = new QWidget(parent);
  const LayoutItem& layout = window.layout();
  const bool isDeclared = !layout.items.empty() || !layout.controls.empty();
  auto* around = WithoutMargins(new QVBoxLayout(content));
  around->setContentsMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
  if (QWidget* menus = MakeMenus(window, content)) around->addWidget(menus);
  around->addWidget(isDeclared ? Make(layout, content) : MakeFlow(window.controls(), content), 1);
  grids_.Align(0, kPanelRoom);
  return content;
}

// The menus of a page wrap where it ends: a bar would hide those that do not fit.
QWidget* LayoutBuilder::MakeMenus(const Window& window, QWidget* parent) {
  auto* holder = new QWidget(parent);
  const std::vector<QToolButton*> heads = menus_.MakeButtons(window, holder);
  if (heads.empty()) {
    delete holder;
    return nullptr;
  }
  FlowLayout* layout = MakeFlowLayout(holder);
  layout->setSpacing(0);
  for (QToolButton* head : heads) layout->addWidget(head);
  return holder;
}

// A picture scrolls either way, controls only up and down.
QWidget* LayoutBuilder::MakeScrolling(const LayoutItem& item, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  LayoutItem content = item;
  content.scrolls = false;
  const std::size_t outer = grids_.count();
  area->setWidget(Make(content, area));
  if (item.kind == LayoutKind::Single) {
    area->setMinimumSize(kLeastScrolled, kLeastScrolled);
    return area;
  }
  grids_.Align(outer, 0);
  if (QLayout* layout = area->widget()->layout()) layout->setContentsMargins(0, 0, kGap, 0);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFixedWidth(area->widget()->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
  return area;
}

QWidget* LayoutBuilder::Make(const LayoutItem& item, QWidget* parent) {
  if (item.scrolls) return MakeScrolling(item, parent);
  QWidget* made = MakeByKind(item, parent);
  if (item.isCompact) Tighten(*made);
  return made;
}

QWidget* LayoutBuilder::MakeByKind(const LayoutItem& item, QWidget* parent) {
  switch (item.kind) {
    case LayoutKind::Column:
      return item.controls.empty() ? MakeColumn(item.items, new QWidget(parent)) : MakeHeaded(item, parent);
    case LayoutKind::Row:
      return MakeRow(item, parent);
    case LayoutKind::Frame:
      return MakeFrame(item, parent);
    case LayoutKind::Flow:
      return MakeFlow(item.controls, parent);
    case LayoutKind::Pane:
      return MakePane(item, parent);
    case LayoutKind::Fold:
      return MakeFold(item, parent);
    case LayoutKind::BarRow:
    case LayoutKind::Single:
      break;
  }
  return IsAligned(item) ? MakeStandAlone(item, parent) : MakeControl(*item.controls.at(0), parent);
}

// Whether it is folded is the person's affair, as a window's place is.
QWidget* LayoutBuilder::MakeFold(const LayoutItem& item, QWidget* parent) {
  auto* holder = new QWidget(parent);
  auto* grid = WithoutMargins(new QGridLayout(holder));
  auto* triangle = new QToolButton(holder);
  QWidget* folded = Make(item.items.at(1), holder);
  triangle->setObjectName("fold");
  triangle->setAutoRaise(true);
  triangle->setFixedSize(kTriangle, kTriangle);
  triangle->setToolTip(ToQt(item.toolTip));
  triangle->setStatusTip(triangle->toolTip());
  const auto show = [triangle, folded](bool isOpen) {
    triangle->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    folded->setVisible(isOpen);
  };
  triangle->setCheckable(true);
  QObject::connect(triangle, &QToolButton::toggled, folded, show);
  show(false);
  grid->addWidget(Make(item.items.at(0), holder), 0, 0);
  grid->addWidget(triangle, 0, 1, Qt::AlignTop);
  grid->addWidget(folded, 1, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  return holder;
}

// One grid for the whole column, so that bars and boxes align though other things stand between them.
QWidget* LayoutBuilder::MakeColumn(const std::vector<LayoutItem>& items, QWidget* column) {
  auto* grid = WithoutMargins(new QGridLayout(column));
  const int inset = inset_;
  if (qobject_cast<QGroupBox*>(column) != nullptr) {
    grid->setContentsMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
    inset_ += kFrameMargin + column->contentsMargins().left();
  }
  const int columns = ColumnsOf(items);
  grid->setColumnStretch(kBarColumn, 1);
  int row = 0;
  for (const LayoutItem& item : items) {
    if (IsAligned(item)) {
      AddLabelled(item, *grid, row, column);
    } else {
      grid->addWidget(Make(item, column), row, 0, 1, columns);
    }
    if (IsAligned(item)) grid->setRowMinimumHeight(row, kRowHeight);
    grid->setRowStretch(row++, item.stretches ? 1 : 0);
  }
  if (!AnyStretches(items)) grid->setRowStretch(row, 1);
  if (!isSideBySide_ && std::any_of(items.begin(), items.end(), IsAligned)) grids_.Add(*grid, inset_);
  inset_ = inset;
  return column;
}

void LayoutBuilder::AddLabelled(const LayoutItem& item, QGridLayout& grid, int row, QWidget* column) {
  QLabel* label = MakeText(item.title, column);
  grid.addWidget(label, row, kLabelColumn, Qt::AlignVCenter);
  const bool isBareBar = item.kind == LayoutKind::BarRow && item.controls.size() == 1;
  const bool isOnlyOne = item.controls.size() == 1 && !isBareBar;
  grid.addWidget(MakeControl(*item.controls.at(0), column), row, kBarColumn, 1, isOnlyOne ? -1 : 1);
  for (std::size_t i = 1; i < item.controls.size(); ++i) {
    const int at = kFirstBoxColumn + static_cast<int>(i) - 1;
    grid.addWidget(MakeControl(*item.controls[i], column), row, at, Qt::AlignVCenter);
  }
  if (isBareBar) {
    auto* value = new QLabel(column);
    grid.addWidget(value, row, kFirstBoxColumn, Qt::AlignVCenter);
    if (auto* bar = dynamic_cast<BarWidget*>(views_.at(item.controls[0]))) bar->ShowValueIn(value);
  }
  PutBefore(label, *item.controls[0]);
}

// A bar row among things that stand side by side.
QWidget* LayoutBuilder::MakeStandAlone(const LayoutItem& item, QWidget* parent) {
  auto* holder = new QWidget(parent);
  auto* layout = WithoutMargins(new QHBoxLayout(holder));
  QLabel* label = MakeText(item.title, holder);
  layout->addWidget(label);
  for (Control* control : item.controls) {
    layout->addWidget(MakeControl(*control, holder), control->kind() == ControlKind::ScrollBar ? 1 : 0);
  }
  PutBefore(label, *item.controls.at(0));
  return holder;
}

QWidget* LayoutBuilder::MakeRow(const LayoutItem& item, QWidget* parent) {
  auto* row = new QWidget(parent);
  if (std::all_of(item.items.begin(), item.items.end(), IsSmall)) {
    FlowLayout* flow = MakeFlowLayout(row);
    flow->setSpacing(2 * kGap);
    for (const LayoutItem& part : item.items) flow->addWidget(Make(part, row));
    return row;
  }
  auto* layout = WithoutMargins(new QHBoxLayout(row));
  const bool wasSideBySide = std::exchange(isSideBySide_, true);
  for (const LayoutItem& part : item.items) {
    QWidget* made = part.isUpright ? MakeControl(*part.controls[0], row, Qt::Vertical) : Make(part, row);
    layout->addWidget(made, part.stretches ? 1 : 0);
  }
  isSideBySide_ = wasSideBySide;
  return row;
}

QWidget* LayoutBuilder::MakeHeaded(const LayoutItem& item, QWidget* parent) {
  QWidget* column = MakeColumn({Single(*item.controls[0]), item.items.at(0)}, new QWidget(parent));
  std::vector<QWidget*> columns;
  for (const LayoutItem& part : item.items[0].items)
    columns.push_back(views_.at(part.controls.at(0))->widget());
  if (auto* heading = dynamic_cast<LabelWidget*>(views_.at(item.controls[0]))) heading->StandAbove(columns);
  return column;
}

// A title that is wider than a tool window becomes text that wraps, above an untitled box.
QWidget* LayoutBuilder::MakeFrame(const LayoutItem& item, QWidget* parent) {
  if (item.controls.empty()) {
    const QString title = ToQt(item.title);
    if (parent->fontMetrics().horizontalAdvance(title) > kWidestTitle) return MakeWrappedFrame(item, parent);
    auto* box = new QGroupBox(title, parent);
    box->setToolTip(QString::fromStdString(item.toolTip));
    return MakeColumn(item.items, box);
  }
  auto* group = new GroupWidget(*item.controls[0], dispatcher_, parent);
  views_[item.controls[0]] = group;
  return MakeColumn(item.items, group);
}

QWidget* LayoutBuilder::MakeWrappedFrame(const LayoutItem& item, QWidget* parent) {
  auto* holder = new QWidget(parent);
  auto* layout = WithoutMargins(new QVBoxLayout(holder));
  auto* title = new QLabel(ToQt(item.title), holder);
  title->setWordWrap(true);
  layout->addWidget(title);
  LayoutItem untitled = item;
  untitled.title.clear();
  layout->addWidget(MakeFrame(untitled, holder));
  return holder;
}

QWidget* LayoutBuilder::MakeFlow(const std::vector<Control*>& controls, QWidget* parent) {
  auto* holder = new QWidget(parent);
  FlowLayout* layout = MakeFlowLayout(holder);
  for (Control* control : controls) layout->addWidget(MakeControl(*control, holder));
  return holder;
}

// No layout: the pictures place themselves.
QWidget* LayoutBuilder::MakePane(const LayoutItem& item, QWidget* parent) {
  auto* pane = new PicturePane(parent);
  for (Control* picture : item.controls) MakeControl(*picture, pane);
  return pane;
}

QWidget* LayoutBuilder::MakeControl(Control& control, QWidget* parent, Qt::Orientation orientation) {
  ControlView* view = MakeView(control, orientation, dispatcher_, parent);
  if (view == nullptr) return new QWidget(parent);
  views_[&control] = view;
  return view->widget();
}

void LayoutBuilder::PutBefore(QLabel* label, Control& control) {
  const auto found = views_.find(&control);
  if (found == views_.end()) return;
  found->second->before = label;
  found->second->widget()->setAccessibleName(label->text());
  found->second->Sync();
}

}  // namespace pelorium
