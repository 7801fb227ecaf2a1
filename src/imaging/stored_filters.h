// Filters that a user made, kept under their names from one session to the next.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "imaging/registry.h"

namespace pelorium {

inline constexpr int kFilterGridSide = 7;
inline constexpr int kFilterGridCells = kFilterGridSide * kFilterGridSide;

// The grid row by row, its middle is number 24. A magnitude is kept in one byte: 300 comes back as 44.
struct StoredFilter {
  std::string name;
  std::int32_t weight = 1;
  std::array<int, kFilterGridCells> values{};
};

// All filters in the order of their numbers, which count from 1 and are never given anew. One that is missing
// or broken has an empty name or an empty grid.
std::vector<StoredFilter> ReadStoredFilters(cRegistry& registry);

// Writes filter `number`; the one behind the last becomes the new last.
void SaveStoredFilter(cRegistry& registry, int number, const StoredFilter& filter);

}  // namespace pelorium
