// A picture on the screen.
#include "desktop/picture_widget.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "controls/scroll_bar.h"

namespace pelorium {

namespace {

constexpr QSize kLeastFollowingSize(160, 120);
constexpr QSize kLeastPane(320, 160);

QColor ToQt(Colour colour) { return {Red(colour), Green(colour), Blue(colour)}; }

QPoint PixelOf(const QMouseEvent& event) {
  return {static_cast<int>(std::floor(event.position().x())),
          static_cast<int>(std::floor(event.position().y()))};
}

bool IsTold(const QMouseEvent& event) {
  return event.button() == Qt::LeftButton || event.button() == Qt::RightButton;
}

// A press and its letting go have a button of their own; a move has those that are held.
MouseButton ButtonOf(const QMouseEvent& event) {
  const Qt::MouseButtons buttons = event.button() == Qt::NoButton ? event.buttons() : event.button();
  if (buttons.testFlag(Qt::LeftButton)) return MouseButton::Left;
  return buttons.testFlag(Qt::RightButton) ? MouseButton::Right : MouseButton::None;
}

Click ClickOf(const QMouseEvent& event) { return {ButtonOf(event), KeysHeld(event.modifiers())}; }

}  // namespace

PicturePane::PicturePane(QWidget* parent) : QWidget(parent) {
  setMinimumSize(kLeastPane);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Dark);
}

PictureWidget::PictureWidget(PictureBox& box, Dispatcher& dispatcher, QWidget* parent)
    : QWidget(parent), box_(box), dispatcher_(dispatcher) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(box.onKey ? Qt::StrongFocus : Qt::ClickFocus);
  setMouseTracking(true);
  if (box.onMouseDown || box.onClick) setCursor(box.onClick ? Qt::PointingHandCursor : Qt::CrossCursor);
  if (box.followsWindow) {
    setMinimumSize(kLeastFollowingSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }
  Adopt(*this, box, dispatcher);
  PictureWidget::Sync();
}

void PictureWidget::Sync() {
  FitToPicture();
  SyncCommon(*this, box_, box_.visible() || box_.hasStandIn());
  update();
}

void PictureWidget::FitToPicture() {
  if (box_.followsWindow) return;
  const QSize size(box_.measures().PixelWidth(), box_.measures().PixelHeight());
  if (minimumSize() != size || maximumSize() != size) setFixedSize(size);
  if (dynamic_cast<PicturePane*>(parentWidget()) != nullptr) {
    move(static_cast<int>(box_.left), static_cast<int>(box_.top));
  }
}

void PictureWidget::ShowPresent() {
  if (!isVisible()) return;
  const Picture& picture = box_.Seen().picture();
  const bool isShown = picture.Revision() == shownRevision_;
  if (isShown && picture.overlay == shownOverlay_) return;
  FitToPicture();
  isShown ? repaint(ReachOf(shownOverlay_).united(ReachOf(picture.overlay))) : repaint();
}

// What the shapes touch, with the width of their lines.
QRect PictureWidget::ReachOf(const std::vector<OverlayShape>& shapes) const {
  const Picture& measures = box_.Seen().measures();
  QRect reach;
  for (const OverlayShape& shape : shapes) {
    const Pixel from = measures.ToPixel(shape.x0, shape.y0);
    const Pixel to = measures.ToPixel(shape.x1, shape.y1);
    reach |= QRect(QPoint(from.x, from.y), QPoint(to.x, to.y)).normalized().adjusted(-2, -2, 2, 2);
  }
  return reach;
}

// A picture that follows its window asks for its own size once; from then on it takes what it gets, so that
// the window can be made smaller again.
QSize PictureWidget::sizeHint() const {
  if (box_.followsWindow && wasShown_) return kLeastFollowingSize;
  return {box_.measures().PixelWidth(), box_.measures().PixelHeight()};
}

void PictureWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  wasShown_ = true;
  updateGeometry();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  const Picture& picture = box_.Seen().picture();
  const int width = picture.PixelWidth(), height = picture.PixelHeight();
  const auto* pixels = reinterpret_cast<const uchar*>(picture.Pixels().data());
  const QImage image(pixels, width, height, width * 4, QImage::Format_RGBX8888);
  QPainter painter(this);
  if (size() != image.size()) painter.fillRect(rect(), ToQt(picture.backColour));
  painter.drawImage(QRect(0, 0, width, height), image);
  DrawOverlay(painter);
  shownRevision_ = picture.Revision();
  shownOverlay_ = picture.overlay;
}

void PictureWidget::DrawOverlay(QPainter& painter) const {
  const Picture& picture = box_.Seen().measures();
  for (const OverlayShape& shape : picture.overlay) {
    const Pixel from = picture.ToPixel(shape.x0, shape.y0);
    const Pixel to = picture.ToPixel(shape.x1, shape.y1);
    painter.setPen(ToQt(shape.colour));
    switch (shape.form) {
      case OverlayShape::Form::Line:
        painter.drawLine(from.x, from.y, to.x, to.y);
        break;
      case OverlayShape::Form::Rectangle:
        painter.drawRect(QRect(QPoint(from.x, from.y), QPoint(to.x, to.y)).normalized());
        break;
      case OverlayShape::Form::Ellipse:
        painter.drawEllipse(QRect(QPoint(from.x, from.y), QPoint(to.x, to.y)).normalized());
        break;
    }
  }
}

UserEvent PictureWidget::MouseEventAt(UserAction action, QPoint pixel, const Click& click) const {
  UserEvent event = EventFor(box_, action);
  event.x = box_.measures().ToUserX(pixel.x());
  event.y = box_.measures().ToUserY(pixel.y());
  event.click = click;
  return event;
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) BeginPan(PixelOf(*event));
  if (!IsTold(*event)) return;
  place_ = PixelOf(*event);
  if (ListensToMouse()) dispatcher_.Deliver(MouseEventAt(UserAction::MouseDown, place_, ClickOf(*event)));
}

// The second press of a quick pair is a press like any other.
void PictureWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  if (event->button() == Qt::LeftButton && box_.onDoubleClick) {
    dispatcher_.Deliver(EventFor(box_, UserAction::DoubleClick));
  }
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint pixel = PixelOf(*event);
  if (pan_) return Pan(pixel);
  if (!box_.onMouseMove || pixel == place_) return;
  place_ = pixel;
  moveClick_ = ClickOf(*event);
  dispatcher_.AddPending(pendingMove_);
  QTimer::singleShot(0, this, [this] { dispatcher_.DeliverPending(pendingMove_); });
}

// A press and its letting go are told together, whichever of them the program acts on.
bool PictureWidget::ListensToMouse() const { return box_.onMouseDown || box_.onMouseMove || box_.onMouseUp; }

UserEvent PictureWidget::TakeMove() { return MouseEventAt(UserAction::MouseMove, place_, moveClick_); }

void PictureWidget::BeginPan(QPoint pixel) {
  if (box_.panAcross == nullptr || box_.panUp == nullptr) return;
  pan_ = PanStart{pixel, box_.panAcross->value(), box_.panUp->value()};
}

// The picture keeps to the mouse: a bar's unit is a unit of the picture.
void PictureWidget::Pan(QPoint pixel) {
  const Picture& picture = box_.measures();
  const double across = picture.ToUserX(pixel.x()) - picture.ToUserX(pan_->pixel.x());
  const double up = picture.ToUserY(pixel.y()) - picture.ToUserY(pan_->pixel.y());
  for (auto [bar, value] : {std::pair{box_.panAcross, pan_->across + across}, {box_.panUp, pan_->up + up}}) {
    UserEvent drag = EventFor(*bar, UserAction::Drag);
    drag.value = bar->Clamped(value);
    if (drag.value != bar->value()) dispatcher_.Deliver(drag);
  }
}

// Whole steps only; a touch pad sends many small turns.
void PictureWidget::wheelEvent(QWheelEvent* event) {
  constexpr int kStep = 120;
  if (!box_.onWheel) return event->ignore();
  wheelLeft_ += event->angleDelta().y();
  const int steps = wheelLeft_ / kStep;
  wheelLeft_ -= steps * kStep;
  if (steps == 0) return;
  const QPoint pixel = event->position().toPoint();
  UserEvent turn = MouseEventAt(UserAction::Wheel, pixel, {MouseButton::Left, KeysHeld(event->modifiers())});
  turn.value = steps;
  turn.click.keys.alt = false;
  dispatcher_.Deliver(turn);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) pan_.reset();
  if (!IsTold(*event)) return;
  place_ = PixelOf(*event);
  if (ListensToMouse()) dispatcher_.Deliver(MouseEventAt(UserAction::MouseUp, place_, ClickOf(*event)));
  if (box_.onClick && rect().contains(place_)) dispatcher_.Press(box_, ClickOf(*event));
}

void PictureWidget::resizeEvent(QResizeEvent*) {
  if (!box_.followsWindow) return;
  const QSize told(box_.measures().PixelWidth(), box_.measures().PixelHeight());
  if (size() == told && box_.isOnScreen) {
    dispatcher_.DropPending(pendingResize_);
    return;
  }
  dispatcher_.AddPending(pendingResize_);
  QTimer::singleShot(0, this, [this] { dispatcher_.DeliverPending(pendingResize_); });
}

UserEvent PictureWidget::TakeResize() {
  UserEvent event = EventFor(box_, UserAction::Resize);
  event.width = width();
  event.height = height();
  event.onScreen = true;
  return event;
}

}  // namespace pelorium
