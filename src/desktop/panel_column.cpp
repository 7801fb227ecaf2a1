// The column of panels.
#include "desktop/panel_column.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

namespace {

constexpr int kHeadGap = 4;  // pixels

}  // namespace

PanelColumn::PanelColumn(const QString& name, QWidget* parent)
    : QWidget(parent),
      title_(*new QLabel(this)),
      list_(*new QComboBox(this)),
      float_(MakeButton(QStyle::SP_TitleBarNormalButton, "a window of its own")),
      close_(MakeButton(QStyle::SP_TitleBarCloseButton, "closes the panel")),
      stack_(*new QStackedWidget(this)) {
  setObjectName(name);
  float_.setObjectName(name + "/float");
  close_.setObjectName(name + "/close");
  QFont bold = title_.font();
  bold.setBold(true);
  title_.setFont(bold);
  list_.setToolTip("the open panels");
  list_.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  connect(&list_, &QComboBox::activated, this, [this](int index) { ShowFront(index); });
  connect(&float_, &QToolButton::clicked, this, [this] { onFloat(*front()); });
  connect(&close_, &QToolButton::clicked, this, [this] { front()->TellClosed(); });

  auto* head = new QHBoxLayout;
  head->setContentsMargins(2 * kHeadGap, kHeadGap, kHeadGap, 0);
  head->setSpacing(kHeadGap);
  head->addWidget(&title_, 1);
  head->addWidget(&list_, 1);
  head->addWidget(&float_);
  head->addWidget(&close_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(&stack_, 1);
  hide();
}

QToolButton& PanelColumn::MakeButton(QStyle::StandardPixmap icon, const char* toolTip) {
  auto* button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setIcon(style()->standardIcon(icon));
  button->setToolTip(toolTip);
  return *button;
}

WindowView* PanelColumn::front() const {
  const int index = stack_.currentIndex();
  return index < 0 ? nullptr : open_[static_cast<std::size_t>(index)];
}

void PanelColumn::Open(WindowView& view) {
  auto at = std::find(open_.begin(), open_.end(), &view);
  if (at == open_.end()) {
    open_.push_back(&view);
    at = open_.end() - 1;
    stack_.addWidget(&view.Content());
    const QSignalBlocker quiet(list_);
    list_.addItem(ToQt(view.window().caption()));
  }
  ShowFront(static_cast<int>(at - open_.begin()));
  show();
}

void PanelColumn::Shut(WindowView& view) {
  const auto at = std::find(open_.begin(), open_.end(), &view);
  if (at == open_.end()) return;
  const QSignalBlocker quiet(list_);
  list_.removeItem(static_cast<int>(at - open_.begin()));
  stack_.removeWidget(&view.Content());
  view.Content().hide();
  open_.erase(at);
  if (open_.empty()) return hide();
  ShowHead();
}

void PanelColumn::Rename(const WindowView& view) {
  const auto at = std::find(open_.begin(), open_.end(), &view);
  if (at == open_.end()) return;
  list_.setItemText(static_cast<int>(at - open_.begin()), ToQt(view.window().caption()));
  ShowHead();
}

void PanelColumn::ShowFront(int index) {
  stack_.setCurrentIndex(index);
  ShowHead();
}

void PanelColumn::ShowHead() {
  const int index = stack_.currentIndex();
  const QSignalBlocker quiet(list_);
  list_.setCurrentIndex(index);
  title_.setText(ToQt(front()->window().caption()));
  title_.setVisible(open_.size() == 1);
  list_.setVisible(open_.size() > 1);
}

}  // namespace pelorium
