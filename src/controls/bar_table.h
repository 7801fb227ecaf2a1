// Scroll bars that are declared as rows of a table, each with the box beside it, instead of one member each.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/layout.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace pelorium {

struct BarSpec {
  const char* bar;  // name of the scroll bar
  const char* box;  // name of the box beside it; "" for none
  BarRange range;
  const char* label;
  const char* toolTip = "";
  double divisor = 1;          // the box shows value / divisor
  const char* text = nullptr;  // what the box shows at the start, when that is not the bar's value
};

// What typing into the boxes of a table does.
enum class Typing {
  MovesBar,    // the bar follows, held in its limits
  IsTheValue,  // the text itself is the parameter; the bar stays
};

// A bar and its box, made from a row.
class TableBar {
 public:
  TableBar(Window& owner, const BarSpec& spec, Typing typing);

  ScrollBar bar;

  // Null without a box.
  TextBox* box() const { return box_.get(); }
  // The number in the box, which may be finer than the bar; without a box the bar's value.
  double Number() const;
  // Bar and box as they were made.
  void Reset();
  LayoutItem Row();

 private:
  std::string StartText() const;

  BarSpec spec_;
  std::unique_ptr<TextBox> box_;
};

// The bars of a table, in its order. They keep their places in memory.
using TableBars = std::vector<std::unique_ptr<TableBar>>;

// `Row` is a struct with a member `BarSpec spec`.
template <typename Rows>
TableBars MakeBars(Window& owner, const Rows& rows, Typing typing) {
  TableBars bars;
  for (const auto& row : rows) bars.push_back(std::make_unique<TableBar>(owner, row.spec, typing));
  return bars;
}

}  // namespace pelorium
