// What the frame holds: pages in the middle, the options and the tools in columns beside them.
#pragma once

#include <QSplitter>
#include <QTabWidget>
#include <memory>
#include <unordered_map>
#include <vector>

namespace pelorium {

class FloatingPanel;
class PanelColumn;
class WindowView;

// Where windows stand is the person's affair of this run: it is neither kept nor told to the program.
class PanelArea : public QSplitter {
 public:
  explicit PanelArea(QWidget* parent);
  ~PanelArea() override;

  // Shows a window where its role belongs, or where the person put it, and brings it to the front.
  void Open(WindowView& view);
  void Shut(WindowView& view);
  bool Holds(WindowView& view) const;
  // The window shows its caption anew.
  void Rename(WindowView& view);
  // All panels back into their columns, the columns at their first width.
  void PutInOrder();
  // Pages first, then panels as they were opened.
  std::vector<WindowView*> open() const;
  // The panel that has the focus; else the page in front, but beside the first page the tool in use, then the
  // options. nullptr when nothing is open.
  WindowView* front() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  PanelColumn* ColumnOf(const WindowView& view);
  void OpenPage(WindowView& view);
  void Float(WindowView& view);
  void PutBack(WindowView& view);
  void BringIntoSight();
  void PlaceColumns();
  void HideEmptyColumns();

  QSplitter& left_;  // the options, and on narrow frames the tools below them
  PanelColumn &options_, &tools_;
  QTabWidget& pages_;
  std::vector<WindowView*> openPages_;
  std::unordered_map<WindowView*, std::unique_ptr<FloatingPanel>> floating_;
  bool isWide_ = false;
};

}  // namespace pelorium
