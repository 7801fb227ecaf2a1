// Builds the widgets of a window from the layout it declares: the one routine that all windows are laid out
// by.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

#include "controls/window.h"
#include "desktop/bar_grids.h"
#include "desktop/control_view.h"

namespace pelorium {

class MenuActions;

class LayoutBuilder {
 public:
  // Views that are built are entered into `views`.
  LayoutBuilder(Dispatcher& dispatcher, ViewMap& views, MenuActions& menus)
      : dispatcher_(dispatcher), views_(views), menus_(menus) {}

  // A widget with everything the window's layout names; a window without a layout shows all its controls in a
  // flow.
  QWidget* Build(const Window& window, QWidget* parent);

 private:
  QWidget* Make(const LayoutItem& item, QWidget* parent);
  QWidget* MakeByKind(const LayoutItem& item, QWidget* parent);
  QWidget* MakeMenus(const Window& window, QWidget* parent);
  QWidget* MakeColumn(const std::vector<LayoutItem>& items, QWidget* column);
  QWidget* MakeRow(const LayoutItem& item, QWidget* parent);
  QWidget* MakeFrame(const LayoutItem& item, QWidget* parent);
  QWidget* MakeWrappedFrame(const LayoutItem& item, QWidget* parent);
  QWidget* MakeScrolling(const LayoutItem& item, QWidget* parent);
  QWidget* MakeHeaded(const LayoutItem& item, QWidget* parent);
  QWidget* MakeFold(const LayoutItem& item, QWidget* parent);
  QWidget* MakePane(const LayoutItem& item, QWidget* parent);
  QWidget* MakeFlow(const std::vector<Control*>& controls, QWidget* parent);
  QWidget* MakeStandAlone(const LayoutItem& item, QWidget* parent);
  void AddLabelled(const LayoutItem& item, QGridLayout& grid, int row, QWidget* column);
  QWidget* MakeControl(Control& control, QWidget* parent, Qt::Orientation orientation = Qt::Horizontal);
  void PutBefore(QLabel* label, Control& control);

  Dispatcher& dispatcher_;
  ViewMap& views_;
  MenuActions& menus_;

  BarGrids grids_;  // of the window that is being built
  int inset_ = 0;
  bool isSideBySide_ = false;
};

}  // namespace pelorium
