// A panel on its own.
#include "desktop/floating_panel.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace pelorium {

FloatingPanel::FloatingPanel(WindowView& view, QWidget* frame, std::function<void()> putBack)
    : QDialog(frame), view_(view) {
  setWindowTitle(ToQt(view.window().caption()));
  auto* back = new QPushButton("Put back", this);
  back->setObjectName("back");
  back->setAutoDefault(false);
  back->setToolTip("into the column of the frame");
  connect(back, &QPushButton::clicked, this, [putBack = std::move(putBack)] { putBack(); });
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view.Content(), 1);
  layout->addWidget(back, 0, Qt::AlignRight);
  view.Content().show();
}

// Closing is the program's to do: it hears of it and hides the window.
void FloatingPanel::reject() { view_.TellClosed(); }

void FloatingPanel::closeEvent(QCloseEvent* event) {
  event->ignore();
  view_.TellClosed();
}

}  // namespace pelorium
