// Between the grid and the processor's kernel.
#include "imaging/filter_grid.h"

#include <cstdlib>

namespace pelorium {

StoredFilter EmptyGrid() {
  StoredFilter grid;
  grid.values[GridIndex(0, 0)] = 1;
  return grid;
}

StoredFilter GridOfType(int type) {
  cImageProcessDIB process;
  process.FilterType(type);
  StoredFilter grid = EmptyGrid();
  const int half = process.FilterArraySize() / 2;
  for (int x = -half; x <= half; ++x) {
    for (int y = -half; y <= half; ++y) {
      grid.values[static_cast<std::size_t>(GridIndex(x, y))] = process.FilterValue(x, y);
    }
  }
  grid.weight = process.FilterWeight();
  return grid;
}

GridProblem TakeGrid(cImageProcessDIB& process, const StoredFilter& grid) {
  int half = -1;
  for (int cell = 0; cell < kFilterGridCells; ++cell) {
    if (grid.values[static_cast<std::size_t>(cell)] == 0) continue;
    half = std::max({half, std::abs(cell % kFilterGridSide - 3), std::abs(cell / kFilterGridSide - 3)});
  }
  if (half < 0) return GridProblem::Black;
  if (half == 0) return GridProblem::TooSmall;
  process.FilterArraySize(2 * half + 1);
  process.FilterWeight(grid.weight);
  for (int x = -half; x <= half; ++x) {
    for (int y = -half; y <= half; ++y) {
      process.FilterValue(x, y, grid.values[static_cast<std::size_t>(GridIndex(x, y))]);
    }
  }
  return GridProblem::None;
}

}  // namespace pelorium
