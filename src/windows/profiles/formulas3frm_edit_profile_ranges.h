// "More Edit of Profile ": edits a range of profiles at once and makes a Part of them.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "geometry/profiles_to_points.h"
#include "profiles/edit_profile_range.h"
#include "windows/profiles/profile_drag.h"
#include "windows/profiles/profile_view_options.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Formulas3Frm : public ToolWindow {
 public:
  explicit Formulas3Frm(App& app);

  // The current profile or Part was chosen elsewhere.
  void ProfileChosen() override;
  void PartChosen() override;

  BoxedBar HScroll3{*this, {"HScroll3", "Text6", kProfiles, "Profile #", "sets profile #"}};
  BoxedBar HScroll12{*this, {"HScroll12", "Text17", kProfiles, "Start", "Profile Range For Effects"}};
  BoxedBar HScroll13{
      *this, {"HScroll13", "Text18", {0, kMaxProfile, 12, 1, 5}, "End ", "Profile Range For Effects"}};
  BoxedBar HScroll23{*this,
                     {"HScroll23", "Text28", {0, kMaxLayer, 0, 1, 5}, "Min", "first point of each profile"}};
  BoxedBar HScroll24{
      *this, {"HScroll24", "Text29", {0, kMaxLayer, kMaxLayer, 1, 5}, "Max", "last point of each profile"}};
  BoxedBar HScroll9{
      *this,
      {"HScroll9", "Text5", {1, kMaxLayer, 1, 1, 5}, "Pts Step", "1 takes every point, 2 every other one"}};
  // A range of profiles to look at. The views show all profiles or one: nothing reads it.
  BoxedBar HScroll22{*this, {"HScroll22", "Text27", kProfiles, "Min", "first profile of a range to look at"}};
  BoxedBar HScroll29{*this,
                     {"HScroll29",
                      "Text34",
                      {0, kMaxProfile, kMaxProfile, 1, 5},
                      "Max",
                      "last profile of a range to look at"}};

  TextBox Text1{*this, "Text1", "10", "units that X, Y and Z move by"};
  PushButton Command1{*this, "Command1", "X", "left button moves up in X, right button down"};
  PushButton Command2{*this, "Command2", "Y", "left button moves up in Y, right button down"};
  PushButton Command3{*this, "Command3", "Z", "left button moves up in Z, right button down"};
  TextBox Text2{*this, "Text2", "2", "degrees of Spin, Rotate and Turn about the origin"};
  PushButton Command4{*this, "Command4", "Spin", "Rotate along Z axis   "};
  PushButton Command5{*this, "Command5", "Rotate", "Rotate along X axis   "};
  PushButton Command6{*this, "Command6", "Turn", "Rotate along Y axis   "};
  TextBox Text10{*this, "Text10", ".99", "factor of the right button"};
  TextBox Text20{*this, "Text20", "1.01", "factor of the left button"};
  PushButton Command35{*this, "Command35", "Scale X", "multiplies X"};
  PushButton Command38{*this, "Command38", "Scale Y", "multiplies Y"};
  PushButton Command41{*this, "Command41", "Scale Z", "multiplies Z"};
  PushButton Command39{*this, "Command39", "Scale XY", "multiplies X and Y"};
  PushButton Command9{*this, "Command9", "Scale XZ", "multiplies X and Z"};
  PushButton Command43{*this, "Command43", "Scale all", "multiplies X, Y and Z"};

  BoxedBar HScroll25{*this,
                     {"HScroll25", "Text30", kProfiles, "Profile # To Copy", "the profile that is copied"}};
  PushButton Command10{*this, "Command10", "Copy to Range", "copies its points to all profiles of the range"};
  BoxedBar HScroll7{*this,
                    {"HScroll7",
                     "Text38",
                     {0, 36, 10, 1, 5},
                     "Spacing",
                     "units from each profile of the range to the next"},
                    Typing::IsTheValue};
  PushButton Command23{*this, "Command23", "Reg X", "spaces the profiles of the range along X"};
  PushButton Command24{*this, "Command24", "Reg Y", "spaces the profiles of the range along Y"};
  PushButton Command25{*this, "Command25", "Reg Z", "spaces the profiles of the range along Z"};

  OptionButton Option1{*this, "Option1", "move", "drag", true, "move profile in X Z direction"};
  OptionButton Option2{*this, "Option2", "rotate", "drag", false, "rotates profile using y axis"};
  OptionButton Option3{*this,  "Option3", "Scale",
                       "drag", false,     "left button scales in X and Z, right button in Z"};
  ScrollBar HScroll4{
      *this, "HScroll4", {1, 36, 1, 1, 5}, "Speed", "units that the range moves for each unit dragged"};
  PictureBox Picture1{*this, "Picture1", kDragWidth, kDragHeight, "drag here to edit the range of profiles"};

  BoxedBar HScroll14{
      *this,
      {"HScroll14", "Text19", {0, kUserParts - 1, 0, 1, 1}, "Part#", "the Part that the profiles make"}};
  BoxedBar HScroll1{*this, {"HScroll1", "Text3", kProfiles, "Profiles min", "the profile of the first row"}};
  BoxedBar HScroll2{
      *this,
      {"HScroll2", "Text4", {0, kMaxProfile, 12, 1, 5}, "Profiles max", "the profile of the last row"}};
  PushButton Command7{*this, "Command7", "Create obj pts", "each profile becomes a row of the Part's points"};
  PushButton Command8{*this, "Command8", "Gen Faces", "makes the faces between the rows"};
  CheckBox Check1{*this, "Check1", "Additive Faces", false, "adds to what the Part holds"};
  CheckBox Check2{*this, "Check2", "Auto Create pts", false,
                  "check to enable auto create pts when gen faces clicked"};
  CheckBox Check3{*this, "Check3", "Auto Copy/Space", false,
                  "check to enable auto copy and spacing in Y dir  when gen faces clicked"};
  CheckBox Check4{*this, "Check4", "Bottom Cap", false, "closes the first row"};
  CheckBox Check5{*this, "Check5", "Top Cap", false, "closes the last row"};

  ProfileViewOptions view;

 private:
  static constexpr BarRange kProfiles{0, kMaxProfile, 0, 1, 5};

  void BindParameters();
  void BindEdits();
  template <typename BlockEdit>
  void BindEdit(PushButton& button, BlockEdit edit);
  ProfileBlock ReadBlock() const;
  ProfileBlock DraggedBlock() const;
  ProfileStack ReadStack() const;
  void ShowEdit();
  void Command7_Click();
  void Command8_Click();
  void BuildFaces(const ProfileStack& stack, int pointsBefore);
  void PressCaps(const ProfileStack& stack, int pointsBefore);
  LayoutItem DeclareLayout();

  ProfileDrag drag_;
};

}  // namespace pelorium
