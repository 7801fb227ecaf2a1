// "Edit Profile": changes profiles point by point, and says from which side they are seen and drawn.
#pragma once

#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "core/model_store.h"
#include "windows/profile_view_options.h"

namespace pelorium {

class App;

class Formulas : public Window {
 public:
  explicit Formulas(App& app);

  // The projection of the profile view.
  Projection SubView() const { return view.Chosen(); }
  // Switches to the profile view, seen from that side; the options of all profile windows follow.
  void ChooseSubView(Projection projection);

  // The current profile was chosen, loaded or changed: its number and its chosen point show.
  void ShowProfile();
  // The chosen point of the profile follows a drawing or a change of the count.
  void ShowPoint(int point) { HScroll27.SetValueWidening(point); }

  ProfileViewOptions view;
  ScrollBar HScroll27{*this,
                      "HScroll27",
                      {0, kMaxLayer, 0, 1, 5},
                      "Point #  (of profile)",
                      "Select 3d profile vertex location point"};
  TextBox Text32{*this, "Text32", "0"};
  ScrollBar HScroll28{*this, "HScroll28", {-1500, 1500, 0, 1, 10}, "Set Elev", "Z location to use"};
  TextBox Text33{*this, "Text33", "0"};
  ScrollBar HScroll25{*this,
                      "HScroll25",
                      {0, kMaxProfile, 0, 1, 5},
                      "Profile #",
                      "Sets current profile to create out of 125 total possible"};
  TextBox Text30{*this, "Text30", "0"};
  ScrollBar HScroll3{*this, "HScroll3", {0, kMaxProfile, 0, 1, 5}, "Global Settings", "the current profile"};
  TextBox Text2{*this, "Text2", "0"};

 private:
  App& app_;
};

}  // namespace pelorium
