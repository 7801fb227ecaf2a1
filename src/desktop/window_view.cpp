// The widgets of one window.
#include "desktop/window_view.h"

#include <QCloseEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/dispatcher.h"
#include "desktop/layout_builder.h"
#include "desktop/qt_text.h"

namespace pelorium {

namespace {

class ModalDialog : public QDialog {
 public:
  ModalDialog(WindowView& view, QWidget* parent) : QDialog(parent), view_(view) {
    setWindowModality(Qt::ApplicationModal);
    (new QVBoxLayout(this))->setContentsMargins(0, 0, 0, 0);
  }
  void reject() override { view_.TellClosed(); }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    view_.TellClosed();
  }

 private:
  WindowView& view_;
};

}  // namespace

WindowView::WindowView(Window& window, LayoutBuilder& builder, Dispatcher& dispatcher)
    : window_(window), builder_(builder), dispatcher_(dispatcher) {}

QScrollArea& WindowView::Content() {
  if (content_ == nullptr) {
    content_ = new QScrollArea;
    content_->setObjectName(ToQt(window_.name()));
    content_->setFrameShape(QFrame::NoFrame);
    content_->setWidgetResizable(true);
    content_->setFocusPolicy(Qt::NoFocus);
    content_->setWidget(builder_.Build(window_, content_));
  }
  return *content_;
}

QDialog& WindowView::AsDialog(QWidget* parent) {
  if (dialog_ == nullptr) dialog_ = new ModalDialog(*this, parent);
  if (Content().parent() != dialog_) {
    dialog_->layout()->addWidget(&Content());
    Content().show();
  }
  return *dialog_;
}

bool WindowView::TakeShow() { return std::exchange(showsSeen_, window_.shows()) != window_.shows(); }

// The width of a scroll bar is added in any case: an area that once needed one and would do without keeps it
// when its content is laid out for the narrower width.
QSize WindowView::ComfortableSize(QSize room) const {
  QWidget& widget = *content_->widget();
  const QSize least = widget.minimumSizeHint();
  const int width = std::max(widget.sizeHint().width(), least.width());
  const int height = widget.hasHeightForWidth() ? widget.heightForWidth(width) : widget.sizeHint().height();
  const int forBar = content_->verticalScrollBar()->sizeHint().width();
  return QSize(width + forBar, std::max(height, least.height())).boundedTo(room);
}

void WindowView::TellClosed() {
  UserEvent event;
  event.window = window_.name();
  event.action = UserAction::CloseWindow;
  dispatcher_.Deliver(event);
}

}  // namespace pelorium
