// "Edit Profile": from which side profiles are seen and drawn, and which point is edited.
#pragma once

#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

class Formulas : public Window {
 public:
  explicit Formulas(App& app);

  // The projection of the profile view.
  Projection SubView() const;

  // The chosen point of the profile follows a drawing or a change of the count.
  void ShowPoint(int point) { HScroll27.SetValueWidening(point); }

  OptionButton Option4{*this,  "Option4", "Front",
                       "view", true,      "draw and show profiles from the front (X, Z)"};
  OptionButton Option5{*this, "Option5", "Top", "view", false, "draw and show profiles from above (X, Y)"};
  OptionButton Option6{*this,  "Option6", "Side",
                       "view", false,     "draw and show profiles from the side (Z, Y)"};
  OptionButton Option7{*this, "Option7", "3d", "view", false, "show profiles from the front, Y leaning in"};
  ScrollBar HScroll27{*this,
                      "HScroll27",
                      {0, kMaxLayer, 0, 1, 5},
                      "Point #  (of profile)",
                      "Select 3d profile vertex location point"};
  TextBox Text32{*this, "Text32", "0"};
  ScrollBar HScroll28{*this, "HScroll28", {-1500, 1500, 0, 1, 10}, "Set Elev", "Z location to use"};
  TextBox Text33{*this, "Text33", "0"};

 private:
  void SubView_Click();

  App& app_;
};

}  // namespace pelorium
