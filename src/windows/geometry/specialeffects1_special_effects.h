// "Special Effects": deforms the chosen points of the current Part.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class SpecialEffects1 : public ToolWindow {
 public:
  explicit SpecialEffects1(App& app);

  BoxedBar HScroll3{*this,
                    {.bar = "HScroll3",
                     .box = "Text15",
                     .range = {0, 1000, 0},
                     .label = "dist +",
                     .toolTip = "points that lie within this distance are moved together",
                     .boxTip = "the distance; after Combine the number of points that moved"}};
  PushButton Command10{*this, "Command10", "Combine", "moves points that lie close together onto one place"};
  ProgressBar ProgressBar1{*this, "ProgressBar1", 100};

 private:
  void Command10_Click();
};

}  // namespace pelorium
