// The filters of the menu as rows of a table.
#pragma once

#include <span>

#include "imaging/image_process.h"

namespace pelorium {

struct FilterSettings {
  ValueRange range;
  Colour chosen = Rgb(150, 150, 150);
  NoiseSettings noise;
};

struct FilterSurfaces {
  cDIBSection &source, &working;
  RandomSeries& random;
};

// What a person is asked before the filter runs.
enum class FilterQuestion { None, Kernel, Noise };

// On which image the source surface is painted in the end.
enum class FilterEnding { Foreground, Background };

struct FilterItem {
  const char* caption;
  const char* item;  // of the menu
  void (*run)(cImageProcessDIB& process, const FilterSurfaces& surfaces, const FilterSettings& settings);
  FilterEnding ending;
  FilterQuestion question = FilterQuestion::None;
};

std::span<const FilterItem> FilterItems();

}  // namespace pelorium
