// "freeface": makes faces by hand: caps, side pieces, fans, strips and single faces.
#pragma once

#include <cstdint>
#include <optional>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "facetools/free_faces.h"
#include "windows/shell/room_links.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

// One press makes at most so many faces, and the far edge lies at most so many points away: two turns of the
// widest ring.
inline constexpr int kMostCapFaces = 120;

class FreeFace : public ToolWindow {
 public:
  explicit FreeFace(App& app);

  // The points of the profiles first..last become those of the current Part, from point 1, and the ranges
  // follow.
  void ImportProfiles(int first, int last);

  // The count of faces and the face in the routing boxes.
  void CountsChanged(Counts which) override;
  void RecordsRestored() override { CountsChanged(Counts::Faces); }

  // Presses a cap's button for a generator: the cap closes the body that was just laid. One without rows gets
  // none.
  void PressCap(Cap cap, const LaidGrid& body);
  // Sets an end cap's faces and the points of a layer, held in their bars.
  void SetRange(int faces, int pointsPerLayer);
  // Chooses an end cap's layer, and makes it when it has a start point.
  void MakeEndCap(int layer, std::optional<int> start);

  BoxedBar HScroll1{
      *this, {"HScroll1", "Text1", {1, kMaxPoints, 1, 1, 32}, "Start pt", "Designate start pt for end cap"}};
  BoxedBar HScroll2{*this, {"HScroll2", "Text2", {1, kMostCapFaces, 34}, "Faces", "faces of the end cap"}};
  BoxedBar HScroll3{*this,
                    {"HScroll3", "Text3", {0, 62, 0}, "Layer", "Designate model \"Layer\" for end cap"}};
  BoxedBar HScroll11{*this,
                     {"HScroll11",
                      "Text14",
                      {3, 62, 32},
                      "Pts per Layer",
                      "sets pts per \"Layer\" for End cap generation "}};
  TextBox Text18{*this, "Text18", "1",
                 "points that a row of the body has more than the sections of Revolve Profile"};
  PushButton Command1{*this, "Command1", "Create ", "Create Endcap based on settings to the left"};
  PushButton Command4{*this, "Command4", "Create Endcap (bottom)", "closes the first layer of the body"};
  PushButton Command5{*this, "Command5", "Create Endcap (top)", "closes the last layer of the body"};

  BoxedBar HScroll4{
      *this, {"HScroll4", "Text4", {1, 61, 1}, "Side # (pt on layer)", "sets starting pt for side cap"}};
  BoxedBar HScroll5{*this, {"HScroll5", "Text5", {0, 62, 1}, "End Layer", "sets layer end pt for side cap "}};
  BoxedBar HScroll6{*this,
                    {"HScroll6", "Text6", {0, 62, 0}, "Start Layer", "sets start pt for layer of endcap"}};
  PushButton Command6{*this, "Command6", "Side Cap (start)", "Create Side Cap--based on obj profile"};
  PushButton Command7{*this, "Command7", "Side Cap (End)",
                      "closes the last points of all layers of the body"};
  PushButton Command8{*this, "Command8", "Side Cap",
                      "Create Side Cap (X,Z dir ) based on settings to the Left"};

  BoxedBar HScroll8{*this,
                    {"HScroll8", "Text8", {1, 61, 1}, "Side (point)", "sets pt to use for side piece"}};
  BoxedBar HScroll7{*this,
                    {"HScroll7", "Text7", {0, 62, 2}, "End Layer", "sets layer end pt for side piece"}};
  BoxedBar HScroll9{*this,
                    {"HScroll9", "Text9", {0, 62, 0}, "Start Layer", "sets layer start pt for side piece"}};
  BoxedBar HScroll10{
      *this,
      {"HScroll10", "Text10", {0, kMostCapFaces, 0}, "offset", "points from the near edge to the far edge"}};
  PushButton Command9{*this, "Command9", "Create Side Piece", "two faces a layer between two sides"};

  BoxedBar HScroll13{
      *this,
      {"HScroll13", "Text19", {1, 2880, 1, 1, 32}, "Start Point", "sets pt to use for side piece"},
      Typing::IsTheValue};
  BoxedBar HScroll14{
      *this,
      {"HScroll14", "Text20", {1, kMostCapFaces, 34}, "# of Faces to Create", "faces of both buttons below"}};
  TextBox Text22{*this, "Text22", "32", "points of a row of the strip"};
  PushButton Command11{*this, "Command11", "Create Radiating", "a fan around the start point"};
  PushButton Command14{*this, "Command14", "Create Disjoined", "each face on three points of its own"};
  PushButton Command15{*this, "Command15", "Create ", "a strip of quads over all rows of points"};

  BoxedBar HScroll15{*this,
                     {.bar = "HScroll15",
                      .box = "Text21",
                      .range = {0, 1200, 0},
                      .label = ">>>",
                      .toolTip = "Max faces",
                      .boxTip = "what Set Total Faces sets"},
                     Typing::IsTheValue};
  TextBox Text16{*this, "Text16", "0", "faces of the Part"};
  PushButton Command2{*this, "Command2", "Incr faces", "incr total faces in obj model"};
  PushButton Command3{*this, "Command3", "Dec Faces", "decrease obj models faces"};
  PushButton Command12{*this, "Command12", "Set Total Faces", "the number of faces that the Part shows"};
  PushButton Command13{*this, "Command13", "Get Profile Points",
                       "get points from profile and copy them to the selected part#"};

  BoxedBar HScroll12{
      *this, {"HScroll12", "Text15", {1, 5000, 1}, "Face #", "Sets face number to edit/view or create"}};
  BoxedBar HScroll16{*this,
                     {"HScroll16", "Text11", {1, kMaxPoints, 1, 1, 32}, "Corner1>> Point#", kCorner1Tip}};
  BoxedBar HScroll17{*this,
                     {"HScroll17", "Text12", {1, kMaxPoints, 2, 1, 32}, "Corner2>> Point#", kCorner2Tip}};
  BoxedBar HScroll18{*this,
                     {"HScroll18", "Text13", {1, kMaxPoints, 3, 1, 32}, "Corner3>> Point#", kCorner3Tip}};
  BoxedBar HScroll19{
      *this, {"HScroll19", "Text17", {0, 1, 1, 1, 1}, "Face On/Off", "set face to on or off 0=off  1=on"}};
  PushButton Command10{*this, "Command10", "Commit (inrc by 1 face)",
                       "stores the corners in the face and goes on to the next"};

 private:
  static constexpr const char* kCorner1Tip =
      "Vertex pt of model obj for face corner 1 >>> Double click to set to chosen point from main window";
  static constexpr const char* kCorner2Tip =
      "Vertex pt of model obj for face corner 2 >>> Double click to set to chosen point from main window";
  static constexpr const char* kCorner3Tip =
      "Vertex pt of model obj for face corner 3 >>> Double click to set to chosen point from main window";

  void BindEndCap();
  void BindCreation();
  void BindCounts();
  void BindRouting();
  FreeFaceSettings ReadSettings() const;
  void ReadBody(FreeFaceSettings& settings) const;
  void FinishAppending();
  void ChangeFaceCount(int count);
  FaceRec& RoutedFace();
  void StoreCorner(const ScrollBar& bar, std::int32_t FaceRec::*corner);
  void HScroll12_Change();
  void Command10_Click();
  LayoutItem DeclareLayout();

  std::optional<LaidGrid> pressedBody_;  // of the generator that presses a cap
};

}  // namespace pelorium
