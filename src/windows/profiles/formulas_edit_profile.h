// "Edit Profile": changes profiles point by point, and says from which side they are seen and drawn.
#pragma once

#include <functional>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "profiles/edit_points.h"
#include "profiles/fetch_profiles.h"
#include "windows/profiles/profile_drag.h"
#include "windows/profiles/profile_view_options.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

// Sides (points of a ring) can be asked for up to here.
inline constexpr int kLastSide = 119;

class Formulas : public ToolWindow {
 public:
  explicit Formulas(App& app);

  // The projection of the profile view: the last side that was chosen.
  Projection SubView() const { return subView_; }
  // Switches to the profile view, seen from that side; the options of all profile windows follow.
  void ChooseSubView(Projection projection);
  // Switches to the shaded view; the same option of all profile windows follows.
  void ChooseShaded();

  // The current profile was chosen, loaded or changed: its number and its chosen point show.
  void ProfileChosen() override;
  void RecordsRestored() override { ShowCoordinates(); }
  // The profile view was chosen: the options go back from "Shaded" to its side.
  void ViewOptionChosen() override;
  // The chosen point of the profile follows a drawing or a change of the count.
  void LayerShown(int layer) override;
  // The same by the mouse: the coordinate that the view does not show becomes the elevation, so that a drag
  // keeps it.
  void LayerChosen(int layer) override;

  ProfileViewOptions view;

  BoxedBar HScroll25{*this,
                     {"HScroll25", "Text30", kProfiles, "Profile #",
                      "Sets current profile to create out of 125 total possible"}};
  BoxedBar HScroll22{*this, {"HScroll22", "Text27", kProfiles, "lowest", "first profile of a range"}};
  BoxedBar HScroll29{
      *this,
      {"HScroll29", "Text34", {0, kMaxProfile, kMaxProfile, 1, 5}, "highest", "last profile of a range"}};
  BoxedBar HScroll23{
      *this,
      {"HScroll23", "Text28", kPoints, "lowest", "layers range (start) in profile for formulas effects"}};
  BoxedBar HScroll24{*this,
                     {"HScroll24",
                      "Text29",
                      {0, kMaxLayer, kMaxLayer, 1, 5},
                      "highest",
                      "layers range (end) in profile for formulas effects"}};
  BoxedBar HScroll3{*this,
                    {"HScroll3", "Text2", kProfiles, "Profile #", "the current profile of all windows"}};

  BoxedBar HScroll27{
      *this,
      {"HScroll27", "Text32", kPoints, "Point #  (of profile)", "Select 3d profile vertex location point"}};
  TextBox Text35{*this, "Text35", "0", "X of the point"};
  TextBox Text36{*this, "Text36", "0", "Y of the point"};
  TextBox Text37{*this, "Text37", "0", "Z of the point"};
  BoxedBar HScroll13{*this, {"HScroll13", "Text15", kPoints, "match point", "the point that is copied"}};
  BoxedBar HScroll14{*this, {"HScroll14", "Text16", kPoints, "=", "the point that takes its place"}};
  PushButton Command12{*this, "Command12", "match points ", "puts the lower point where the upper one is"};
  PushButton Command7{*this, "Command7", "Join Ends",
                      "join ends--moves last point to first point in profile"};
  PushButton Command17{*this, "Command17", "Reset Pos", "Sets Draw pos to start back at position 0"};
  PushButton Command19{*this, "Command19", "Erase ", "Erase All  Vertex pts in profile"};
  PushButton Command18{*this, "Command18", "Copy ", "Copy Current profile to a range of profiles in memory"};

  PushButton Command1{*this, "Command1", "swap xy", "swaps X and Y vertex pts "};
  PushButton Command2{*this, "Command2", "swap xz", "swaps X and Z vertex pts "};
  PushButton Command3{*this, "Command3", "swap yz", "swaps Y and Z vertex pts "};
  PushButton Command20{*this, "Command20", "Inv X ", "Inverts profile in X dir"};
  PushButton Command21{*this, "Command21", "Inv Y", "Inverts profile in Y dir"};
  PushButton Command22{*this, "Command22", "Inv Z", "Inverts profile in Z dir"};
  PushButton Command10{*this, "Command10", "Mirror Profile (X)", "mirror profile in X dir "};
  PushButton Command11{*this, "Command11", "Mirror Profile (Z)", "mirror profile in Z dir "};
  PushButton Command4{*this, "Command4", "Mirror profiles (X)", "mirror the range of profiles in X dir"};
  PushButton Command5{*this, "Command5", "Mirror Profiles (Z)", "mirror the range of profiles in Z dir"};

  BoxedBar HScroll1{
      *this,
      {"HScroll1", "Text38", {-500, 500, 100, 1, 10}, "Spacing", "units from profile to profile", kTenths},
      Typing::IsTheValue};
  PushButton Command23{*this, "Command23", "Reg X", "spaces the range of profiles along X"};
  PushButton Command24{*this, "Command24", "Reg Y", "spaces the range of profiles along Y"};
  PushButton Command25{*this, "Command25", "Reg Z", "spaces the range of profiles along Z"};
  BoxedBar HScroll2{
      *this,
      {"HScroll2", "Text1", {-100, 100, 10, 1, 10}, "Multiplyer", "units from profile to profile"},
      Typing::IsTheValue};
  PushButton Command8{*this, "Command8", "Set ", "Z of the range of profiles by their numbers"};
  BoxedBar HScroll28{*this,
                     {"HScroll28", "Text33", {-1500, 1500, 0, 1, 10}, "Set Elev", "Z location to use"}};
  PushButton Command16{*this, "Command16", "Set Elev", "Sets general location for profile in Z dir"};

  BoxedBar HScroll18{*this, {"HScroll18", "Text25", kPoints, "Layer", "the layer of the Part to get"}};
  PushButton Command14{*this, "Command14", "Get Layer",
                       "Retrieve a chosen layer from obj model and turns it into a profile "};
  BoxedBar HScroll9{*this, {"HScroll9", "Text11", kPoints, "Start Layer", "the first layer to get"}};
  BoxedBar HScroll10{*this, {"HScroll10", "Text12", kPoints, "End Layer", "the last layer to get"}};
  BoxedBar HScroll11{*this,
                     {"HScroll11", "Text13", kProfiles, "Starting Profile#", "profile of the first layer"}};
  PushButton Command6{*this, "Command6", " Layers",
                      "Retrieve a chosen layer from obj model and turns it into a profile "};
  BoxedBar HScroll7{
      *this, {"HScroll7", "Text9", {1, kLastSide, 1, 1, 5}, "Start Side", "the first side (pt) to get"}};
  BoxedBar HScroll8{*this,
                    {"HScroll8", "Text10", {1, kLastSide, 1, 1, 5}, "End Side", "the last side (pt) to get"}};
  BoxedBar HScroll12{*this,
                     {"HScroll12", "Text14", kProfiles, "Starting Profile#", "profile of the first side"}};
  PushButton Command9{*this, "Command9", "Sides ",
                      "Retrieve a chosen side (pt)  from obj model and turns it into a profile "};

  BoxedBar HScroll4{*this,
                    {.bar = "HScroll4",
                     .box = "Text4",
                     .range = {0, 200, 25, 1, 10},
                     .label = "ht scale",
                     .toolTip = "amount of z dir scaling 1=100 .25=25 percent... and so fourth",
                     .divisor = kHundredths,
                     .boxTip = "ht per click to use (scale amount) Z dir"},
                    Typing::IsTheValue};
  PushButton Command15{*this, "Command15", "Z ",
                       "gray levels effect for Layer using gray scale levels in image window"};
  PushButton method4{*this, "method4", "Random", "random points for the profile as it is seen"};

  PictureBox Picture1{*this, "Picture1", kDragWidth, kDragHeight,
                      "move by mouse current profile window--drag/click to use"};
  OptionButton Option1{*this, "Option1", "move", "drag", true, "move profile in X Z direction"};
  OptionButton Option2{*this, "Option2", "rotate", "drag", false, "rotates profile using y axis"};
  OptionButton Option3{*this,  "Option3", "Scale",
                       "drag", false,     "scale profile Left but=X/Z  Right but= Z dir"};

 private:
  static constexpr BarRange kProfiles{0, kMaxProfile, 0, 1, 5};
  static constexpr BarRange kPoints{0, kMaxLayer, 0, 1, 5};

  // Runs an edit under the trap, then shows what became of the profile.
  void Bind(PushButton& button, std::function<void()> edit);
  void BindParameters();
  void BindPointEdits();
  void BindAxes();
  void BindMirrors();
  void BindFetches();
  LayerSpan Points() const { return {HScroll23.value(), HScroll24.value()}; }
  ProfileSpan Profiles() const { return {HScroll22.value(), HScroll29.value()}; }
  RingGrid Rings() const;
  void ShowCoordinates();
  void StoreCoordinates();
  void JoinEnds();
  void FetchRandom();
  void FetchGrays();
  LayoutItem DeclareLayout();

  void ShowSubView();

  Projection subView_ = Projection::Front;
  bool isShadedChosen_ = false;  // "Shaded" is being chosen in all windows
  ProfileDrag drag_;
};

}  // namespace pelorium
