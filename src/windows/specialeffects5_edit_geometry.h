// "Edit Geometry": chooses points and faces of the current Part in many ways, and moves, turns and scales the
// chosen points with the mouse on small pictures.
#pragma once

#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "core/model_store.h"

namespace pelorium {

class App;

class SpecialEffects5 : public Window {
 public:
  explicit SpecialEffects5(App& app);

  // "Faces Start" and "Faces End" show the face range of the View Options; with "Autopick Pts" its points are
  // chosen when it moved.
  void FollowFaceRange();

  OptionButton Option2{*this, "Option2", "Circle", "shape", true};
  OptionButton Option3{*this, "Option3", "Rectang", "shape", false,
                       "select xyz points based on 2d rectangle distance option"};
  ScrollBar HScroll2{*this, "HScroll2", {1, 1000, 50}, "X"};
  ScrollBar HScroll6{*this, "HScroll6", {1, 1000, 50}, "Y"};
  PushButton Command5{*this, "Command5", "By face"};

 private:
  App& app_;
};

}  // namespace pelorium
