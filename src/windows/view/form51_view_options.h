// "View Options": the current Part and profile, the ranges, the view mode and what the views show.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "windows/shell/picture_drag.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

inline constexpr int kPreviewSide = 120;  // pixels of the shaded preview

class Form51 : public ToolWindow {
 public:
  explicit Form51(App& app);

  // Sets the limits of the start.
  void Load() override;
  void CountsChanged(Counts which) override;
  void CountsFollowed() override;
  void CountsRestored() override;
  void RecordsRestored() override;

  // The profile's count as it is now, in every control that shows it.
  void ShowProfileCount();

  // Everything that shows values of the current profile shows them anew, after a load.
  void ShowProfile();

  BoxedBar HScroll4{*this, {"HScroll4", "Text3", {0, 1, 0, 1, 1}, "Part #", "the Part that is edited"}};
  BoxedBar HScroll3{
      *this, {"HScroll3", "Text2", {0, kMaxProfile, 0, 1, 5}, "Profile #", "the profile that is edited"}};
  ScrollBar HScroll6{
      *this, "HScroll6", {0, kMaxLayer, 0, 1, 5}, "At \"Layer\" :", "layers in use of the profile"};
  Label Label17{*this, "Label17", "0"};
  BoxedBar HScroll2{*this, {"HScroll2", "Text1", {0, kMaxLayer, 0, 1, 5}, "Set current layer"}};
  PushButton Command17{*this, "Command17", "set to 0", "starts the profile over at layer 0"};

  OptionButton Option1{*this, "Option1", "Draw/Edit  Profile", "view"};
  OptionButton Option2{*this, "Option2", "Front View", "view"};
  OptionButton Option5{*this, "Option5", "Top View", "view"};
  OptionButton Option3{*this, "Option3", "Draw Tesselated", "view"};
  OptionButton Option6{*this, "Option6", "Side View", "view"};
  OptionButton Option4{*this, "Option4", "View 3D", "view"};
  OptionButton Option16{*this, "Option16", "Tri View", "view"};
  OptionButton Option11{*this, "Option11", "Shaded view", "view"};
  OptionButton Option7{*this, "Option7", "Shaded", "view"};  // does what Command2 does
  PushButton Command2{*this, "Command2", "Shaded View", "shows the Parts shaded"};
  PictureBox Picture3{*this, "Picture3", kPreviewSide, kPreviewSide,
                      "shaded view use mouse button/drage to view objs as shaded"};
  Label LeftDragHint{*this, "LeftDragHint", "left drag = rotate"};
  Label RightDragHint{*this, "RightDragHint", "right drag = spin"};
  Label ShiftDragHint{*this, "ShiftDragHint", "Shift+left drag= move right button z move"};

  CheckBox Check1{*this, "Check1", "Show grid", true};
  CheckBox Check7{*this, "Check7", "Show unselected", true, "wire of both Parts"};
  CheckBox Check3{*this, "Check3", "Show selected face"};
  CheckBox Check9{*this, "Check9", "Show pts - Unsel Parts", false, "points of both Parts"};
  CheckBox Check10{*this, "Check10", "Show points in current obj", true, "points of the chosen range"};
  CheckBox Check14{*this, "Check14", "Profile", false, "current profile over the Parts"};
  CheckBox Check16{*this, "Check16", "All Profiles", false, "all profiles over the Parts"};
  CheckBox Check12{*this, "Check12", "Show Parts in Profile Edit/View"};
  CheckBox Check30{*this, "Check30", "Show Origin ", true};
  CheckBox Check15{*this, "Check15", "show line for next profile pt", true};
  CheckBox Check17{*this, "Check17", "Show select points area", true};
  CheckBox Check13{*this, "Check13", "Lines Unsl", false, "shaded view: edges of the other Part"};
  CheckBox Check21{*this, "Check21", "Lines sel part#", false, "shaded view: edges of the current Part"};

  CheckBox Check4{*this, "Check4", "x move enabled", true};
  CheckBox Check5{*this, "Check5", "y move enabled", true};
  CheckBox Check8{*this, "Check8", "enable draw point", true, "clicks in the profile view draw points"};
  CheckBox Check2{*this, "Check2", "Welded Faces"};
  CheckBox Check6{*this, "Check6", "Check6", false, "faces stay behind when their points move"};

  ScrollBar HScroll7{*this, "HScroll7", {1, kMaxFaces, 1, 1, 50}, "Faces Start", "first face edited"};
  Label Label12{*this, "Label12", "1"};
  ScrollBar HScroll5{*this, "HScroll5", {0, kMaxFaces, kMaxFaces, 1, 50}, "Faces End", "last face edited"};
  Label Label10{*this, "Label10", std::to_string(kMaxFaces)};
  Label Label3{*this, "Label3", ""};
  Label Label19{*this, "Label19", ""};

  BoxedBar HScroll8{*this,
                    {"HScroll8", "Text6", {1, 1000, 50, 1, 10}, "Grid Spacing", "units between grid lines"}};
  ScrollBar HScroll9{
      *this, "HScroll9", {-2000, 2000, 200, 1, 50}, "tri view sep", "units between the three views"};
  ScrollBar HScroll13{*this, "HScroll13", {1, 1000, 7, 1, 10}, "Zoom", "scale of the shaded view"};
  ScrollBar HScroll1{*this, "HScroll1", {64, 4096, 637, 1, 50}, "Zoom", "pixels of the shaded view"};
  Label Label33{*this, "Label33", ".0007"};
  PushButton Command26{*this, "Command26", "IN/OUT", "left button zooms in, right button zooms out"};
  PushButton Command1{*this, "Command1", "refresh"};

  TextBox Text10{*this, "Text10", "1"};
  TextBox Text8{*this, "Text8", "360"};
  TextBox Text9{*this, "Text9", "36"};
  PushButton Command5{*this, "Command5", "=", "the first times the second, divided by the third"};
  Label Label24{*this, "Label24", ""};
  TextBox Text7{*this, "Text7", "1"};
  TextBox Text5{*this, "Text5", "10"};
  TextBox Text4{*this, "Text4", "10"};
  PushButton Command3{*this, "Command3", "=", "the first times the second, divided by the third"};
  Label Label21{*this, "Label21", ""};

 private:
  void ShowCount();
  void HScroll4_Change();
  void HScroll3_Change();
  void HScroll6_Change();
  void Zoom_Change();
  class ShadedView& Shaded() const;
  void Command2_Click();
  void Option7_Click();
  void BindPreview();
  void Picture3_MouseDown(const MouseEvent& event);
  void Picture3_MouseMove(const MouseEvent& event);
  void BindViews();
  LayoutItem DeclareLayout();

  PictureDrag preview_{PictureDrag::Places::Whole};
};

}  // namespace pelorium
