// "Edit Geometry": chooses points and faces of the current Part in many ways, and moves, turns and scales the
// chosen points with the mouse on small pictures.
#pragma once

#include <functional>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/axes.h"
#include "core/model_store.h"
#include "windows/geometry/geometry_drag.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class SpecialEffects5 : public ToolWindow {
 public:
  explicit SpecialEffects5(App& app);

  // "Part #" shows the current Part.
  void PartChosen() override;

  // The areas that pick show the view anew. Does nothing while the window is closed.
  void ViewsRefreshed(const ViewSettings& settings) override;

  // "Faces Start" and "Faces End" show the face range of the View Options; with "Autopick Pts" its points are
  // chosen, unless automatic actions are held.
  void FaceRangeChosen() override;
  void CountsChanged(Counts which) override;
  void CountsRestored() override;
  // "Show parts" is the tick of the View Options.
  void ViewOptionChosen() override;

  BoxedBar HScroll1{
      *this, {"HScroll1", "Text1", {0, kUserParts - 1, 0, 1, 1}, "Part #", "chosen part number to edit"}};
  TextBox Text3{*this, "Text3", "1", "speed of the drags: 1 is half a unit or half a degree for each unit"};
  CheckBox Check3{*this, "Check3", " Edit obj", true, "off: drags leave the points where they are"};
  CheckBox Check1{*this, "Check1", "Show parts", true, "shows the wire of all parts"};
  CheckBox Check4{*this, "Check4", "Join ends", false, "the ends of each ring stay together while dragging"};

  OptionButton Option7{*this, "Option7", "&Move", "drag", true, "move x,y,z Left but=X/Y Right but= Z"};
  OptionButton Option8{*this,     "Option8",
                       "&Rotate", "drag",
                       false,     "turns about the origin: Left but=X-Z plane Right but= X-Y and Y-Z plane"};
  OptionButton Option9{*this,  "Option9", "&Scale",
                       "drag", false,     "scales about the origin: across X, up and down Y and Z"};
  OptionButton Option10{*this,       "Option10",
                        "&Pick Pts", "drag",
                        false,       "the area stands for the view: Left but=points on Right but= off"};
  OptionButton Option11{*this, "Option11", "Move &Origin", "drag", false, "enable move origin by mouse"};

  PictureBox Picture1{*this, "Picture1", kAreaWidth, kAreaHeight, "drag here to edit the chosen points"};
  PictureBox Picture2{*this, "Picture2", kSmallAreaWidth, kSmallAreaHeight,
                      "Left Button--turn in X-Z   Right Button turn in X-Y and Y-Z"};
  PictureBox Picture3{*this, "Picture3", kSmallAreaWidth, kSmallAreaHeight,
                      "across scales X, up and down scales Y and Z"};
  PictureBox Picture4{*this, "Picture4", kSmallAreaWidth, kSmallAreaHeight,
                      "Left Button--X,Y move   Right Button Z move     Double click move to 0,0,0"};
  PictureBox Picture5{*this, "Picture5", kAreaWidth, kAreaHeight, "pict pts area window"};

  OptionButton Option2{*this, "Option2", "Circle", "shape", true, "picks the points within Y of the click"};
  OptionButton Option3{*this,   "Option3", "Rectang",
                       "shape", false,     "select xyz points based on 2d rectangle distance option"};
  BoxedBar HScroll2{*this, {"HScroll2", "Text2", {1, 1000, 50}, "X", "half the width of the rectangle"}};
  BoxedBar HScroll6{
      *this,
      {"HScroll6", "Text6", {1, 1000, 50}, "Y", "half the height of the rectangle, radius of the circle"}};

  OptionButton Option4{*this, "Option4", "&X ", "axis", true, "X dir pick pts"};
  OptionButton Option5{*this, "Option5", "&Y ", "axis", false, "Y dir pick pts"};
  OptionButton Option6{*this, "Option6", "&Z ", "axis", false, "Z dir pick pts"};
  ScrollBar VScroll1{*this,
                     "VScroll1",
                     {-kFarthest, kFarthest, -kFarthest, 1, 50},
                     "Low",
                     "moving it chooses the points between low and high, and only those"};
  ScrollBar VScroll2{*this,
                     "VScroll2",
                     {-kFarthest, kFarthest, kFarthest, 1, 50},
                     "High",
                     "moving it chooses the points between low and high, and only those"};

  OptionButton Option1{*this,      "Option1", "On",
                       "distance", true,      "points within the distance are switched on"};
  OptionButton Option12{*this,      "Option12", "Off",
                        "distance", false,      "points within the distance are switched off"};
  BoxedBar HScroll9{*this,
                    {"HScroll9",
                     "Text10",
                     {0, 2 * kFarthest, 100},
                     "Dist",
                     "moving it switches the points around the origin"}};

  BoxedBar HScroll3{*this, {"HScroll3", "Text8", {0, kMaxLayer, 0, 1, 5}, "Start", "first layer"}};
  BoxedBar HScroll8{*this, {"HScroll8", "Text9", {0, kMaxLayer, 1, 1, 5}, "End", "last layer"}};
  PushButton Command3{*this, "Command3", "Points",
                      "switches the points of these layers on, right button off"};

  BoxedBar HScroll4{
      *this, {"HScroll4", "Text4", {1, kMaxFaces, 1, 1, 50}, "Faces Start", "first face of the sub group"}};
  BoxedBar HScroll5{
      *this, {"HScroll5", "Text5", {0, kMaxFaces, 1, 1, 50}, "Faces End", "last face of the sub group"}};
  CheckBox Check2{*this, "Check2", "Autopick Pts", false,
                  "Set to autopick pts by selected faces when sliders are moved"};
  PushButton Command5{*this, "Command5", "By face", "chooses the points of these faces, and only those"};
  PushButton Command7{*this, "Command7", "By Face",
                      "switches the points of these faces on, right button off; the others stay"};
  PushButton Command8{*this, "Command8", "Face on/off by Selected Subgroup",
                      "switches these faces on, right button off"};

  BoxedBar HScroll7{*this, {"HScroll7", "Text7", {0, kMaxGroup, 1, 1, 5}, "Group", "material group"}};
  CheckBox Check5{*this, "Check5", "Auto Select Points by Group", false,
                  "moving the slider chooses the points of the group"};
  PushButton Command6{
      *this, "Command6", " By Group",
      "chooses the points of the face range that are of this group; right button takes them off"};
  PushButton Command2{*this, "Command2", "Set Group", "puts the face range into this group"};
  PushButton Command10{*this, "Command10", "Set", "puts the faces of the chosen points into this group"};
  PushButton Command11{*this, "Command11", "Get group", "shows the group of the point of Face Info/Edit"};

  PushButton Command4{*this, "Command4", "Pts On/ Off",
                      "switches the point range and the face range on, right button off"};
  PushButton Command9{*this, "Command9", "Inv Pts", "inverts pts on or off "};
  PushButton Command1{*this, "Command1", "Face on/off by Selected Points ",
                      "switches the faces of the chosen points on, right button off"};

  PushButton Command12{*this, "Command12", "Y", kMirrorTip};
  PushButton Command13{*this, "Command13", "X", kMirrorTip};
  PushButton Command14{*this, "Command14", "Z", kMirrorTip};
  PushButton Command15{*this, "Command15", "X", kStepTip};
  PushButton Command16{*this, "Command16", "Y", kStepTip};
  PushButton Command17{*this, "Command17", "Z", kStepTip};
  PushButton Command18{*this, "Command18", "ZM", "left button zooms the view in, right button zooms out"};

 private:
  // A quarter of the view's usual size: picks are not distorted.
  static constexpr int kAreaWidth = 241, kAreaHeight = 159;           // pixels
  static constexpr int kSmallAreaWidth = 110, kSmallAreaHeight = 80;  // pixels
  static constexpr int kFarthest = 1500;  // models seldom reach further from 0, in units
  static constexpr const char* kMirrorTip = "mirrors the chosen points at the origin along this axis";
  static constexpr const char* kStepTip =
      "moves the chosen points by the move amount of Precise Edit, right button back";

  GeometryMode DragMode() const;
  Axis PickAxis() const;

  void BindParameters();
  void BindPicks();
  void BindFaces();
  void BindEdits();

  void MoveFaceRange(ScrollBar& bar, ScrollBar& shared);
  void Autopick();
  void PickByAxis();
  void HScroll7_Change();
  void HScroll9_Change();
  void Command5_Click();
  void Command6_Click(bool on);
  void Command11_Click();

  // An edit of the points of a button; `change` is told whether the left button was used.
  void Bind(PushButton& button, std::function<void(bool isLeft)> change, const EditRule& rule = kRefreshOnly);

  LayoutItem DeclareLayout();
  std::vector<LayoutItem> DragFrames();
  std::vector<LayoutItem> ChoiceFrames();

  bool isFollowing_ = false;  // the two face bars are being set here or there
  GeometryDrag drag_, rotation_, scaling_, originMove_, picking_;
};

}  // namespace pelorium
