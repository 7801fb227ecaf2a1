// "Unfold": lays the triangles of a mesh flat, pair by pair, until a strip of them is a net that can be cut
// out, and saves the net as a drawing.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "core/axes.h"
#include "core/model_store.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;
struct LaidPair;
struct PatternSettings;

class Unfold : public ToolWindow {
 public:
  explicit Unfold(App& app);

  // Opens it with the limits of the Part's faces.
  void Show() override;

  BoxedBar VScroll2{*this,
                    {"VScroll2", "Text1", {1, 200, 1, 2, 2}, "Face #", "choose face (usually a pair)"}};
  CheckBox Check1{*this, "Check1", "Auto Flatten", false, "choosing a face flattens it"};
  CheckBox Check2{*this, "Check2", "Single Face ", false, "works on one triangle instead of a pair"};
  PushButton Command11{*this, "Command11", "update limits", "the bars reach to the Part's last face"};
  PushButton Command12{*this, "Command12", "Disjoin Faces",
                       "gives every face three points of its own: do this first"};

  BoxedBar VScroll1{*this,
                    {"VScroll1", "Text5", {-1500, 1500, 10, 1, 10}, "Z Elev", "Z of what is laid flat"}};
  PushButton Command1{*this, "Command1", "Flatten", "lays the face or the pair flat at the origin"};
  PushButton Command8{*this, "Command8", "spin", "turns the first triangle onto the second"};
  PushButton Command3{*this, "Command3", "MA",
                      "measures the angles of the edges that the pair has in common"};
  Label FirstTriangle{*this, "FirstTriangle", "1st Tri", "firs triangle in face pair"};
  Label Label2{*this, "Label2", "0", "firs triangle in face pair"};
  Label SecondTriangle{*this, "SecondTriangle", "2nd Tri", "2nd triangle in face pair"};
  Label Label3{*this, "Label3", "0", "2nd triangle in face pair"};

  PushButton Command2{*this, "Command2", "move to origin",
                      "moves the chosen points: corner 1 comes to the origin"};
  PushButton Command10{*this, "Command10", "MA", "measures the angle to the pair before"};
  PushButton Command9{*this, "Command9", "Spin",
                      "turns the chosen points onto the edge of the pair before, right button the other way"};
  TextBox Text4{*this, "Text4", "1", "amount of spin-info only"};

  PushButton Command4{*this, "Command4", "C1", "Set Origin to Corner1"};
  PushButton Command5{*this, "Command5", "C2", "Set Origin to Corner2"};
  PushButton Command6{*this, "Command6", "C3", "Set Origin to Corner3-first tri"};
  PushButton Command7{*this, "Command7", "Cent", "Set Origin to the middle of the first tri"};
  PushButton Command13{*this, "Command13", "C1", "Set Origin to Corner1 of the second tri"};
  PushButton Command14{*this, "Command14", "C2", "Set Origin to Corner2 of the second tri"};
  PushButton Command15{*this, "Command15", "C3", "Set Origin to Corner3 of the second tri"};
  PushButton Command16{*this, "Command16", "Cent", "Set Origin to the middle of the second tri"};
  PushButton Command23{*this, "Command23", "Mid", "Center of Both or Middle point"};

  TextBox Text6{*this, "Text6", "1", "Amount of movement or rotation"};
  PushButton Command18{*this, "Command18", "X", kMoveTip};
  PushButton Command19{*this, "Command19", "Y", kMoveTip};
  PushButton Command20{*this, "Command20", "Z", kMoveTip};
  PushButton Command17{*this, "Command17", "Spin", "turns the chosen points in X-Y, right button back"};
  PushButton Command21{*this, "Command21", "Turn", "turns the chosen points in X-Z, right button back"};
  PushButton Command22{*this, "Command22", "Rotate", "turns the chosen points in Y-Z, right button back"};

  BoxedBar HScroll2{*this,
                    {"HScroll2", "Text3", {1, 200, 1, 2, 2}, "Faces Start", "first face of the range"}};
  BoxedBar HScroll1{*this, {"HScroll1", "Text2", {2, 200, 2, 2, 2}, "Faces End", "last face of the range"}};
  PushButton Command24{*this, "Command24", "ON/OFF", "left button on, right button off"};
  PushButton Command25{*this, "Command25", "ON/OFF", "left button on, right button off"};

  PushButton Command26{*this, "Command26", "Save pattern as SVG",
                       "saves the faces of the range that are on and lie at Z Elev, true to scale"};
  TextBox Text7{*this, "Text7", "1", "millimetres on paper of one unit of the model"};
  ListBox List1{*this, "List1", "the paper; what is larger goes over several pages"};
  CheckBox Check3{*this, "Check3", "Glue tabs, mm", false, "adds tabs to the edges that are glued"};
  TextBox Text8{*this, "Text8", "5", "width of the tabs in millimetres"};
  CheckBox Check4{*this, "Check4", "Face numbers", false, "writes the number of each face"};

 private:
  static constexpr const char* kMoveTip = "moves the chosen points by the amount, right button back";

  void BindChoice();
  void BindFlattening();
  void BindOrigin();
  void BindMoves();
  void BindSwitches();

  int Face() const { return VScroll2.value(); }
  bool IsPair() const { return !Check2.value(); }
  void UpdateLimits();
  void ChooseFaces(int first, int last);
  void VScroll2_Change();
  void Check2_Click();
  void Command1_Click();
  void ShowPreview(const LaidPair& laid);
  void ShowAngles();
  void Command8_Click();
  void TurnChosenPoints(Axis p, Axis q, double degrees);
  void FinishStep();
  PatternSettings ReadPatternSettings() const;
  void Command26_Click();
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
