// Lining up.
#include "desktop/bar_grids.h"

#include <algorithm>

namespace pelorium {

namespace {

constexpr int kWidestCommonLabel = 130;  // pixels: longer ones do not move the bars of other frames
constexpr int kWidestCommonBox = 90;

}  // namespace

int BarGrids::BarGrid::LeastWidth() const {
  const QMargins own = grid->contentsMargins();
  return grid->minimumSize().width() - own.left() - own.right() + 2 * inset;
}

// Of what stands in that column alone; 0 where nothing does.
int BarGrids::BarGrid::ColumnWidth(int column) const {
  int width = 0;
  for (int i = 0; i < grid->count(); ++i) {
    int row = 0, left = 0, rows = 0, columns = 0;
    grid->getItemPosition(i, &row, &left, &rows, &columns);
    if (left == column && columns == 1) width = std::max(width, grid->itemAt(i)->sizeHint().width());
  }
  return width;
}

void BarGrids::Align(std::size_t first, int room) {
  for (std::size_t i = first; i < grids_.size(); ++i) room = std::max(room, grids_[i].LeastWidth());
  AlignColumn(first, room, kLabelColumn, kWidestCommonLabel);
  AlignColumn(first, room, kFirstBoxColumn, kWidestCommonBox);
  grids_.resize(first);
}

void BarGrids::AlignColumn(std::size_t first, int room, int column, int widestCommon) {
  int wanted = 0;
  for (std::size_t i = first; i < grids_.size(); ++i) {
    const int width = grids_[i].ColumnWidth(column);
    if (width <= widestCommon) wanted = std::max(wanted, width + grids_[i].inset);
  }
  for (std::size_t i = first; i < grids_.size(); ++i) {
    const BarGrid& bars = grids_[i];
    const int width = bars.ColumnWidth(column), growth = wanted - bars.inset - width;
    if (width > 0 && growth > 0 && bars.LeastWidth() + growth <= room)
      bars.grid->setColumnMinimumWidth(column, width + growth);
  }
}

}  // namespace pelorium
