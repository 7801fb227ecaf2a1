// A pattern as SVG 1.1 drawings in millimetres, one for each page of paper.
#pragma once

#include <string>

#include "base/text_writer.h"
#include "interchange/flat_pattern.h"

namespace pelorium {

enum class PatternPaper { A4, A3, Letter, Fit };

inline constexpr int kMaxPatternPages = 200;

// How a pattern lies on pages. Millimetres; a tile is what a page shows, within its margins. Tiles follow
// each other from left to right and then downwards.
struct PatternPages {
  double paperWidth = 0, paperHeight = 0;
  double tileWidth = 0, tileHeight = 0;
  int columns = 1, rows = 1;
  double left = 0, top = 0;  // of the first tile, in the pattern

  int count() const { return columns * rows; }
};

// Upright or lying, whichever takes fewer pages; on one page the pattern stands in the middle. A pattern that
// has no lines or takes more than kMaxPatternPages pages raises an InvalidValue fault.
PatternPages LayOutPages(const FlatPattern& pattern, PatternPaper paper);

// Page `page` counts from 0. One of several has crop marks at the corners of its tile and says which it is.
void WriteSvgPage(const FlatPattern& pattern, const PatternPages& pages, int page, TextWriter& out);

}  // namespace pelorium
