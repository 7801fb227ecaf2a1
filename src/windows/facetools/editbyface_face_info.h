// "Face Info/Edit": one point and one face of the current Part as numbers, the face as a picture, and tools
// that measure, turn and flatten the face.
#pragma once

#include <array>
#include <functional>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/axes.h"
#include "core/model_store.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class EditByFace : public ToolWindow {
 public:
  explicit EditByFace(App& app);

  // The limits of both choices follow the Part's counts; a choice that lies outside goes back to point 0,
  // face 1.
  void CountsChanged(Counts which) override;
  void CountsRestored() override;
  void RecordsRestored() override;
  // While the window is open its numbers follow every edit; a box that a person types in is left alone.
  void ViewsRefreshed(const ViewSettings& settings) override;

  FrameBox Frame2{*this, "Frame2", "Vertex info --Double Click to Choose Current Pt",
                  "double click: the point last picked in the view"};
  ScrollBar VScroll1{*this, "VScroll1", {0, 28800, 1}, "Point", "the point whose numbers show"};
  Label Label4{*this, "Label4", "1", "number of the point"};
  Label PointHeader{*this, "PointHeader", "X                     Y                    Z        on/off",
                    "where the point lies; typing stores all four"};
  TextBox Text1{*this, "Text1", "1", "x location"};
  TextBox Text2{*this, "Text2", "1", "y location"};
  TextBox Text3{*this, "Text3", "1", "z location"};
  TextBox Text4{*this, "Text4", "1", "1 = the point is on, 0 = off"};
  BoxedBar HScroll1{*this,
                    {"HScroll1", "Text23", {1, 50, 5}, "Move Amnt", "units of one press of X, Y or Z"}};
  PushButton Command23{*this, "Command23", "X", kMoveTip};
  PushButton Command24{*this, "Command24", "Y", kMoveTip};
  PushButton Command25{*this, "Command25", "Z", kMoveTip};

  FrameBox Frame3{*this, "Frame3", "Face Info", "double click: limits and counts as the Part has them"};
  ScrollBar VScroll2{*this, "VScroll2", {1, 70, 1}, "Face ", "the face whose numbers show"};
  Label Label3{*this, "Label3", "1", "number of the face"};
  CheckBox Check1{*this, "Check1", "This Face's Points only", false,
                  "choosing a face chooses its three points and no others"};
  CheckBox Check2{*this, "Check2", "Auto Flat", false, "choosing a face flattens it"};
  Label FaceHeader{*this, "FaceHeader", "1                   2                3       On/Off",
                   "points of the corners; typing stores all four"};
  TextBox Text5{*this, "Text5", "1", kCornerTip};
  TextBox Text6{*this, "Text6", "1", kCornerTip};
  TextBox Text7{*this, "Text7", "1", kCornerTip};
  TextBox Text8{*this, "Text8", "1", "1 = the face is on, 0 = off"};
  Label Corner1{*this, "Corner1", "Corner1 XYZ", kPlacesTip},
      Corner2{*this, "Corner2", "Corner2 XYZ", kPlacesTip},
      Corner3{*this, "Corner3", "Corner3 XYZ", kPlacesTip};
  TextBox Text11{*this, "Text11", "0", "x location of corner 1"};
  TextBox Text12{*this, "Text12", "0", "y location of corner 1"};
  TextBox Text13{*this, "Text13", "0", "z location of corner 1"};
  TextBox Text14{*this, "Text14", "0", "x location of corner 2"};
  TextBox Text15{*this, "Text15", "0", "y location of corner 2"};
  TextBox Text16{*this, "Text16", "0", "z location of corner 2"};
  TextBox Text17{*this, "Text17", "0", "x location of corner 3"};
  TextBox Text18{*this, "Text18", "0", "y location of corner 3"};
  TextBox Text19{*this, "Text19", "0", "z location of corner 3"};

  Label Label8{*this, "Label8", "0", "dist 1 "};
  Label Label9{*this, "Label9", "0", "dist 2"};
  Label Label13{*this, "Label13", "0", "dist 3"};

  PushButton Command7{*this, "Command7", "C1", "Set origin to Corner1"};
  PushButton Command9{*this, "Command9", "C2", "Set origin to Corner2"};
  PushButton Command10{*this, "Command10", "C3", "Set origin to Corner3"};
  PushButton Command11{*this, "Command11", "Cent", "Set origin to the middle of the face"};
  PushButton Command15{*this, "Command15", "ma", "measures how edge 1-2 leans in X and Y"};
  PushButton Command16{*this, "Command16", "ma", "measures how edge 1-3 leans in Z and X"};
  PushButton Command17{*this, "Command17", "ma", "measures how edge 1-2 leans in Z and Y"};
  Label Label15{*this, "Label15", "0", "the measured angle in degrees: S, R and T turn by it"};
  PushButton Command2{*this, "Command2", "S", "Spin: turns the chosen points in X-Y, right button back"};
  PushButton Command12{*this, "Command12", "R", "Rotate: turns the chosen points in Y-Z, right button back"};
  PushButton Command13{*this, "Command13", "T", "Turn: turns the chosen points in X-Z, right button back"};
  PushButton Command18{*this, "Command18", "Even", "turns the chosen points until edge 2-3 stands along Y"};
  PushButton Command19{*this, "Command19", "Flat", "Flatten Chosen Face to XY Plane"};
  PushButton Command8{*this, "Command8", "calc",
                      "shows the normal and lays the face into Z = 10; right button only shows the normal"};
  TextBox Text20{*this, "Text20", "0", "x of the normal"};
  TextBox Text21{*this, "Text21", "0", "y of the normal"};
  TextBox Text22{*this, "Text22", "0", "z of the normal"};

  TextBox Text9{*this, "Text9", "100", "points of the Part"};
  TextBox Text10{*this, "Text10", "200", "faces of the Part"};
  PushButton Command5{*this, "Command5", "Set", "the Part counts as many points and faces as the boxes say"};
  PushButton Command22{*this, "Command22", "Update ", "limits and counts as the Part has them"};

  ScrollBar VScroll3{
      *this, "VScroll3", {20, 650, kPictureSide, 20, 20}, "View size", "pixels of the picture"};
  PictureBox Picture1{*this, "Picture1", kPictureSide, kPictureSide,
                      "the chosen face; click to draw it anew"};
  PushButton Command14{*this, "Command14", "SV", "saves the picture to the folder \"faces\""};

 private:
  static constexpr int kPictureSide = 200;  // pixels
  static constexpr const char* kMoveTip = "moves the point by the amount, right button back";
  static constexpr const char* kPlacesTip = "where the corners lie; typing stores all nine numbers";
  static constexpr const char* kCornerTip =
      "number of the corner's point; double click: the point last picked in the view";

  enum class Fill { All, UntypedOnly };

  void BindPoint();
  void BindFace();
  void BindCounts();
  void BindOrigin();
  void BindTurns();
  void BindPicture();

  const std::array<TextBox*, 3> pointBoxes_ = {&Text1, &Text2, &Text3};
  const std::array<TextBox*, 3> cornerBoxes_ = {&Text5, &Text6, &Text7};
  const std::array<Label*, 3> cornerLabels_ = {&Corner1, &Corner2, &Corner3};
  // X, Y, Z of each corner in turn.
  const std::array<TextBox*, 9> placeBoxes_ = {&Text11, &Text12, &Text13, &Text14, &Text15,
                                               &Text16, &Text17, &Text18, &Text19};

  const FaceRec& ChosenFace() const;
  void ShowPoint(Fill fill);
  void ShowCorners(Fill fill);
  void ShowPlaces(Fill fill);
  void DrawFacePicture();
  void ShowFace(Fill fill);
  void StorePoint();
  void MovePoint(Axis axis, double by);
  void StoreCorners();
  void StorePlaces();
  void StoreCounts();
  void ShowLimits();
  void TakePickedPoint();
  void VScroll2_Change();
  void ChooseItsPoints();
  void FlattenAutomatically();
  void Turn(const Click& click, Axis p, Axis q);
  void Command18_Click();
  void Command19_Click();
  void Command8_Click(const Click& click);
  void SavePicture();
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
