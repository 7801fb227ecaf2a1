// A column of panels beside the page: one of them is in sight, and the head of the column names them all.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <functional>
#include <vector>

namespace pelorium {

class WindowView;

// Panels stand in the order in which they were opened. A column without panels hides.
class PanelColumn : public QWidget {
 public:
  PanelColumn(const QString& name, QWidget* parent);

  // Puts the panel into the column, if it is not there yet, and brings it to the front.
  void Open(WindowView& view);
  void Shut(WindowView& view);
  // The panel, if it stands here, shows its caption anew.
  void Rename(const WindowView& view);
  const std::vector<WindowView*>& open() const { return open_; }
  WindowView* front() const;

  // The person wants the panel in sight as a window of its own.
  std::function<void(WindowView&)> onFloat;

 private:
  QToolButton& MakeButton(QStyle::StandardPixmap icon, const char* toolTip);
  void ShowFront(int index);
  void ShowHead();

  std::vector<WindowView*> open_;
  QLabel& title_;    // of the only panel
  QComboBox& list_;  // of several
  QToolButton &float_, &close_;
  QStackedWidget& stack_;
};

}  // namespace pelorium
