// Labels, titled boxes and progress bars on the screen.
#include "desktop/label_widgets.h"

#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "desktop/dispatcher.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

constexpr int kWidestKeptRoom = 300;  // pixels
constexpr int kWidestLine = 380;      // pixels: what is longer wraps

// A hand over what can be clicked on though it does not look like a button.
void ShowWhetherClickable(QWidget& widget, const Control& control) {
  if (control.onClick || control.onDoubleClick) widget.setCursor(Qt::PointingHandCursor);
}

}  // namespace

LabelWidget::LabelWidget(Control& label, Dispatcher& dispatcher, QWidget* parent)
    : QLabel(parent), label_(label) {
  setTextFormat(Qt::PlainText);
  if (label.kind() == ControlKind::Frame) {
    setFrameStyle(QFrame::StyledPanel);
    setMargin(4);
  }
  ShowWhetherClickable(*this, label);
  Adopt(*this, label, dispatcher);
  LabelWidget::Sync();
}

void LabelWidget::Sync() {
  const QString caption = ToQt(label_.caption());
  if (text() != caption) {
    setText(caption);
    setWordWrap(fontMetrics().horizontalAdvance(caption) > kWidestLine);
    KeepRoom();
  }
  SyncCommon(*this, label_);
}

// A label that shows changing values keeps the room it once took, and has some from the start: else the
// window would be laid out anew, and its picture resized, at every move of the mouse.
void LabelWidget::KeepRoom() {
  const bool showsNumber = !text().isEmpty() && text().back().isDigit();
  const int wanted = fontMetrics().horizontalAdvance(showsNumber ? text() + "000" : text());
  if (wanted <= kWidestKeptRoom) setMinimumWidth(std::max(minimumWidth(), wanted + 2 * margin()));
}

void LabelWidget::paintEvent(QPaintEvent* event) {
  if (columns_.empty()) return QLabel::paintEvent(event);
  static const QRegularExpression kWideGap(QStringLiteral(" {2,}"));
  const QStringList words = text().split(kWideGap, Qt::SkipEmptyParts);
  QPainter painter(this);
  for (std::size_t i = 0; i < columns_.size() && static_cast<qsizetype>(i) < words.size(); ++i) {
    const int left = mapFromGlobal(columns_[i]->mapToGlobal(QPoint(0, 0))).x();
    painter.drawText(QRect(left, 0, width() - left, height()), Qt::AlignVCenter,
                     words[static_cast<qsizetype>(i)]);
  }
}

GroupWidget::GroupWidget(Control& frame, Dispatcher& dispatcher, QWidget* parent)
    : QGroupBox(parent), frame_(frame) {
  ShowWhetherClickable(*this, frame);
  Adopt(*this, frame, dispatcher);
  GroupWidget::Sync();
}

void GroupWidget::Sync() {
  setTitle(ToQt(frame_.caption()));
  SyncCommon(*this, frame_);
}

ProgressWidget::ProgressWidget(ProgressBar& bar, Dispatcher& dispatcher, QWidget* parent)
    : QProgressBar(parent), bar_(bar) {
  setTextVisible(false);
  Adopt(*this, bar, dispatcher);
  ProgressWidget::Sync();
}

void ProgressWidget::Sync() {
  setRange(0, bar_.max());
  setValue(bar_.value());
  SyncCommon(*this, bar_);
}

}  // namespace pelorium
