// The axes by name, for edits that work alike on each of them.
#pragma once

namespace pelorium {

enum class Axis { X, Y, Z };

// A coordinate of anything that has X, Y and Z: mesh points, profile points, places.
template <typename Place>
constexpr auto& Coordinate(Place& place, Axis axis) {
  return axis == Axis::X ? place.X : axis == Axis::Y ? place.Y : place.Z;
}

}  // namespace pelorium
