// "Add Noise": asks how much noise a filter lays over the picture, and where.
#pragma once

#include <optional>

#include "controls/buttons.h"
#include "controls/text_box.h"
#include "imaging/noise_filters.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class FrmAddNoise : public ToolWindow {
 public:
  explicit FrmAddNoise(App& app);

  // Runs the window; nothing when it was cancelled. A percentage past 32 bits raises Overflow.
  std::optional<NoiseSettings> Ask();

  TextBox txtAmount{*this, "txtAmount", "20", "how far the levels stray"};
  OptionButton randomType{*this, "optType(0)", "&Random", "type", true, "every pixel"};
  OptionButton uniformType{*this,  "optType(1)", "&Uniform",
                           "type", false,        "pixels by chance: the higher the percentage, the fewer"};
  PushButton cmdOK{*this, "cmdOK", "OK", "runs the filter"};
  PushButton cmdCancel{*this, "cmdCancel", "Cancel", "leaves the picture as it is"};

 private:
  bool Cancelled = true;
};

}  // namespace pelorium
