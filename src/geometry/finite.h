// Coordinates stay finite numbers, so that every model can be saved.
#pragma once

#include <cmath>

#include "base/fault.h"

namespace pelorium {

// The value that an edit worked out; one that is no finite number raises an Overflow fault.
inline double Finite(double value) {
  if (!std::isfinite(value)) throw Fault(FaultKind::Overflow, "coordinate");
  return value;
}

}  // namespace pelorium
