// A picture on the screen, and the mouse over it.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "controls/picture_box.h"
#include "desktop/control_view.h"
#include "desktop/dispatcher.h"

namespace pelorium {

// Shows the part of its pictures that lies in it. They stand where their left and top say.
class PicturePane : public QWidget {
 public:
  explicit PicturePane(QWidget* parent);
};

// One picture pixel is one logical pixel of the screen; a screen of twice the density shows it as 2 x 2.
class PictureWidget : public QWidget, public ControlView {
 public:
  PictureWidget(PictureBox& box, Dispatcher& dispatcher, QWidget* parent);

  QWidget* widget() override { return this; }
  void Sync() override;
  // Repaints at once if the picture or its overlay is not the one on the screen: all of it, or of shapes that
  // moved their old and their new place.
  void ShowPresent();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  // The newest place of the mouse that was not delivered yet.
  class PendingMove : public PendingInput {
   public:
    explicit PendingMove(PictureWidget& owner) : owner_(owner) {}
    UserEvent TakeEvent() override { return owner_.TakeMove(); }

   private:
    PictureWidget& owner_;
  };
  class PendingResize : public PendingInput {
   public:
    explicit PendingResize(PictureWidget& owner) : owner_(owner) {}
    UserEvent TakeEvent() override { return owner_.TakeResize(); }

   private:
    PictureWidget& owner_;
  };

  UserEvent MouseEventAt(UserAction action, QPoint pixel, const Click& click) const;
  bool ListensToMouse() const;
  UserEvent TakeMove();
  UserEvent TakeResize();
  void BeginPan(QPoint pixel);
  void Pan(QPoint pixel);
  void DrawOverlay(QPainter& painter) const;
  QRect ReachOf(const std::vector<OverlayShape>& shapes) const;
  void FitToPicture();

  PictureBox& box_;
  Dispatcher& dispatcher_;
  PendingMove pendingMove_{*this};
  PendingResize pendingResize_{*this};
  QPoint place_{-1, -1};  // of the mouse, when last told
  Click moveClick_;
  // A drag with the middle button: where it began, and the bars' values then.
  struct PanStart {
    QPoint pixel;
    int across = 0, up = 0;
  };
  std::optional<PanStart> pan_;
  int wheelLeft_ = 0;  // eighths of a degree that make no whole step yet
  bool wasShown_ = false;
  std::uint64_t shownRevision_ = 0;
  std::vector<OverlayShape> shownOverlay_;
};

}  // namespace pelorium
