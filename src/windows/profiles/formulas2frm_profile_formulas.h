// " Profile  Formulas": fills a profile by a formula instead of by drawing. The bars of its parameters are
// rows of a table in the source; the text beside a bar is the parameter itself.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "profiles/profile_formulas.h"
#include "windows/profiles/profile_view_options.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Formulas2Frm : public ToolWindow {
 public:
  explicit Formulas2Frm(App& app);

  // The current profile was chosen elsewhere.
  void ProfileChosen() override;

  ProfileViewOptions view;
  BoxedBar HScroll25{
      *this, {"HScroll25", "Text30", {0, kMaxProfile, 0, 1, 5}, "Prof#", "Sets current profile# to create "}};
  CheckBox Check2{*this, "Check2", "Additive Effects", false,
                  "check to enable additive effect only on existing profile "};

  OptionButton Option9{*this, "Option9", "None", "auto", true, "formulas run when their button is pressed"};
  OptionButton Option3{*this, "Option3", "Auto Circle", "auto", false, "circle anew at every move of a bar"};
  OptionButton Option1{*this, "Option1", "Auto Sine", "auto", false, "sine anew at every move of a bar"};
  OptionButton Option2{*this, "Option2", "Auto Parab", "auto", false, "parabula anew at every move of a bar"};

  PushButton Command6{*this, "Command6", "Circle", "creates circle or ovel shaped profile"};
  PushButton Command7{*this, "Command7", "Sine", "creates sine wave shaped profile in z dir"};
  PushButton Command10{*this, "Command10", "Sine X ", "creates sine wave shaped profile in x dir "};
  PushButton Command4{*this, "Command4", "Parab", "creates parabula shaped profile"};
  PushButton Command5{*this, "Command5", "Parabula2", "creates varient of parbula based profile"};
  PushButton Command15{*this, "Command15", "Reg space X",
                       "creates reg spaces layers in resulting profile along x dir"};
  PushButton Command2{*this, "Command2", "sin wave", "wave in x, y and z rise together"};
  PushButton Command1{*this, "Command1", "sin wave2", "wave in y and z, rising in x"};
  PushButton Command8{*this, "Command8", "sin wave 3", "slope in y, slope with a wave in z, rising in x"};
  PushButton Command3{*this, "Command3", "funnel",
                      "parabula in x by the factor; uses the bars of X spacing, Z decay and Parabula Ampl"};
  TextBox Text13{*this, "Text13", "1", "factor of the funnel"};

  PushButton Command9{*this, "Command9", "Reset", "resets to default values for circle generation"};
  PushButton Command11{*this, "Command11", "Reset", "resets to default values for sine wave generation"};
  PushButton Command12{*this, "Command12", "Reset", "resets to default values for parabula generation"};

 private:
  void BindFormulas();
  void BindFormula(PushButton& button, std::function<void(const FormulaSettings&)> formula);
  FormulaSettings ReadSettings() const;
  RandomSeries& SeededRandom();
  void AutoFormula();
  void ResetFrame(std::string_view frame);
  std::vector<LayoutItem> FrameRows(std::string_view frame);
  LayoutItem DeclareLayout();

  BoxedBars parameters_;
};

}  // namespace pelorium
