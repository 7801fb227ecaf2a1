// Lines up the bars of a window's frames: each frame has a grid of its own, with a label, a bar and a box a
// row.
#pragma once

#include <QGridLayout>
#include <vector>

namespace pelorium {

class BarGrids {
 public:
  static constexpr int kLabelColumn = 0, kBarColumn = 1, kFirstBoxColumn = 2;

  // `inset`: how far the grid's frame is set in on either side, its own margin included, in pixels.
  void Add(QGridLayout& grid, int inset) { grids_.push_back({&grid, inset}); }
  std::size_t count() const { return grids_.size(); }

  // The labels of all grids but the first ones get one width, and so do the boxes, as far as no grid grows
  // wider than the widest, or than `room` pixels. Those grids are forgotten then.
  void Align(std::size_t first, int room);

 private:
  struct BarGrid {
    QGridLayout* grid;
    int inset;

    int LeastWidth() const;
    int ColumnWidth(int column) const;
  };
  void AlignColumn(std::size_t first, int room, int column, int widestCommon);

  std::vector<BarGrid> grids_;
};

}  // namespace pelorium
