// A scroll bar with the box beside it, told in one declaration, and tables of such bars.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "controls/layout.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace pelorium {

// Divisors of bars that count parts of what their box shows.
inline constexpr double kTenths = 10, kHundredths = 100, kThousandths = 1000;

struct BarSpec {
  const char* bar;  // name of the scroll bar
  const char* box;  // name of the box beside it
  BarRange range;
  const char* label;
  const char* toolTip = "";
  double divisor = 1;          // the box shows value / divisor
  const char* text = nullptr;  // what the box shows at the start, when that is not the bar's value
  const char* boxTip = "";     // the box's own tool tip; without one it shows the bar's
};

// What typing into the box does.
enum class Typing {
  MovesBar,    // the bar follows, held in its limits
  IsTheValue,  // the text itself is the parameter; the bar stays
};

// The box follows the bar whenever it moves. It is a control of the window like any other, right behind the
// bar.
class BoxedBar : public ScrollBar {
 public:
  BoxedBar(Window& owner, const BarSpec& spec, Typing typing = Typing::MovesBar);

  TextBox box;

  using ScrollBar::TakeTyped;  // as a person types into the box
  // The number in the box, which may be finer than the bar.
  double Number() const { return box.Number(); }
  // Bar and box as they were made.
  void Reset();

 private:
  const int startValue_;
  const std::string startText_;
};

// A bar, its box, and further controls behind them.
LayoutItem BarRow(BoxedBar& bar, std::initializer_list<Control*> others = {});

// The bars of a table, in its order. They keep their places in memory.
using BoxedBars = std::vector<std::unique_ptr<BoxedBar>>;

// `Row` is a struct with a member `BarSpec spec`.
template <typename Rows>
BoxedBars MakeBars(Window& owner, const Rows& rows, Typing typing) {
  BoxedBars bars;
  for (const auto& row : rows) bars.push_back(std::make_unique<BoxedBar>(owner, row.spec, typing));
  return bars;
}

}  // namespace pelorium
