// How a drag scales: by a hundredth at each mouse event, whatever its length.
#pragma once

namespace pelorium {

// Smaller for a way to the left or down, larger for one to the right or up, 1 for none.
constexpr double DragFactor(double dragged) { return dragged < 0 ? 0.99 : dragged > 0 ? 1.01 : 1; }

}  // namespace pelorium
