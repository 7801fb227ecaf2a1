// Glue tabs.
#include "interchange/pattern_tabs.h"

#include <algorithm>
#include <cmath>

namespace pelorium {

namespace {

constexpr long kMostCells = 400;  // of one shape
constexpr double kFarthestCell = 1e9;

long CellNumber(double at, double cell) {
  const double number = std::floor(at / cell);
  if (!(number > -kFarthestCell)) return static_cast<long>(-kFarthestCell);  // a NaN too
  return static_cast<long>(std::min(number, kFarthestCell));
}

long Key(long x, long y) { return x * 0x10000001L ^ y; }

// How far the shapes lie apart across the sides of the first; below 0 where they overlap.
double GapAcrossSidesOf(const PatternShape& shape, const PatternShape& other) {
  double widest = -HUGE_VAL;
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const PatternPlace &a = shape[i], &b = shape[(i + 1) % shape.size()];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (!(length > 0)) continue;
    const double nx = (b.y - a.y) / length, ny = (a.x - b.x) / length;
    const auto reach = [&](const PatternShape& s) {
      std::pair<double, double> ends{HUGE_VAL, -HUGE_VAL};
      for (const PatternPlace& p : s) {
        const double at = (p.x - a.x) * nx + (p.y - a.y) * ny;
        ends = {std::min(ends.first, at), std::max(ends.second, at)};
      }
      return ends;
    };
    const auto mine = reach(shape), theirs = reach(other);
    widest = std::max({widest, theirs.first - mine.second, mine.first - theirs.second});
  }
  return widest;
}

}  // namespace

bool TakenRoom::Overlap(const PatternShape& a, const PatternShape& b) const {
  return GapAcrossSidesOf(a, b) < -touch_ && GapAcrossSidesOf(b, a) < -touch_;
}

TakenRoom::Cells TakenRoom::CellsOf(const PatternShape& shape) const {
  const auto [left, right] = std::minmax_element(
      shape.begin(), shape.end(), [](const PatternPlace& p, const PatternPlace& q) { return p.x < q.x; });
  const auto [bottom, top] = std::minmax_element(
      shape.begin(), shape.end(), [](const PatternPlace& p, const PatternPlace& q) { return p.y < q.y; });
  return {CellNumber(left->x, cell_), CellNumber(right->x, cell_), CellNumber(bottom->y, cell_),
          CellNumber(top->y, cell_)};
}

bool TakenRoom::AreMany(const Cells& cells) {
  const long across = cells.right - cells.left + 1, up = cells.top - cells.bottom + 1;
  return across > kMostCells || up > kMostCells || across * up > kMostCells;
}

void TakenRoom::Take(const PatternShape& shape) {
  const std::size_t number = shapes_.size();
  shapes_.push_back(shape);
  const Cells cells = CellsOf(shape);
  if (AreMany(cells)) return large_.push_back(number);
  for (long x = cells.left; x <= cells.right; ++x) {
    for (long y = cells.bottom; y <= cells.top; ++y) byCell_[Key(x, y)].push_back(number);
  }
}

bool TakenRoom::IsFree(const PatternShape& shape) const {
  const auto covers = [&](std::size_t number) { return Overlap(shapes_[number], shape); };
  const Cells cells = CellsOf(shape);
  if (AreMany(cells)) {
    return std::none_of(shapes_.begin(), shapes_.end(),
                        [&](const PatternShape& taken) { return Overlap(taken, shape); });
  }
  if (std::any_of(large_.begin(), large_.end(), covers)) return false;
  for (long x = cells.left; x <= cells.right; ++x) {
    for (long y = cells.bottom; y <= cells.top; ++y) {
      const auto found = byCell_.find(Key(x, y));
      if (found == byCell_.end()) continue;
      if (std::any_of(found->second.begin(), found->second.end(), covers)) return false;
    }
  }
  return true;
}

PatternShape TabOn(const PatternPlace& from, const PatternPlace& to, double width) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double dx = (to.x - from.x) / length, dy = (to.y - from.y) / length;
  const double height = std::min(width, length / 2);
  const double outX = dy * height, outY = -dx * height;
  PatternShape tab = {from, {from.x + dx * height + outX, from.y + dy * height + outY}};
  if (width < length / 2) tab.push_back({to.x - dx * height + outX, to.y - dy * height + outY});
  tab.push_back(to);
  return tab;
}

}  // namespace pelorium
