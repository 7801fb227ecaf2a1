// The grid of 7 by 7 cells in which a user writes a kernel.
#pragma once

#include "imaging/image_process.h"
#include "imaging/stored_filters.h"

namespace pelorium {

enum class GridProblem { None, Black, TooSmall };

// The cell of the grid for a cell of the kernel, both -3..3 from the middle. What stands right of the middle
// acts on the pixel above, what stands below it on the pixel to the right.
constexpr int GridIndex(int x, int y) { return (3 + x) * kFilterGridSide + 3 + y; }

// All 0 with 1 in the middle and the weight 1.
StoredFilter EmptyGrid();

// The kernel of a filter type with one of its own, and its weight.
StoredFilter GridOfType(int type);

// Black: all cells are 0; TooSmall: only the middle is not. Else the processor takes the smallest kernel that
// holds all cells that are not 0, and the weight.
GridProblem TakeGrid(cImageProcessDIB& process, const StoredFilter& grid);

}  // namespace pelorium
