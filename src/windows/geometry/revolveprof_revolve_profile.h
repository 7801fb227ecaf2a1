// "Revolve Profile": sweeps the current profile around an axis into the current Part.
#pragma once

#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "geometry/revolve.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class RevolveProf : public ToolWindow {
 public:
  explicit RevolveProf(App& app);

  // The general fields show the current profile's values; nothing is written.
  void ProfileChosen() override;
  void RecordsRestored() override { ShowGeneralFields(); }
  void ShowGeneralFields();

  // Petals, spiral and corkscrew back to none, as the plain revolve of the menu wants it.
  void ResetEffects();

  // "Points Start" as typed, held in its bar's range.
  int FirstSection() const;

  // Builds the faces of a grid of `rows` rows of `width` points in the current Part, keeps what was laid, and
  // lets the ranges follow.
  void BuildGridFaces(int width, int rows);

  BoxedBar HScroll10{*this,
                     {"HScroll10",
                      "Text8",
                      {3, 61, 36},
                      "Sections",
                      "total number of points to revolve (total sides of final obj= points-1)"}};
  BoxedBar HScroll4{*this,
                    {"HScroll4",
                     "Text9",
                     {-12000, 12000, 1000, 10, 100},
                     "Degrees Per Section",
                     "number of degrees between each successive point in obj",
                     kHundredths},
                    Typing::IsTheValue};
  BoxedBar HScroll9{
      *this,
      {"HScroll9", "Text7", {0, 61, 0}, "Points Start", "point number of obj to start at for revolve"},
      Typing::IsTheValue};
  BoxedBar HScroll11{
      *this,
      {"HScroll11", "Text6", {0, 36, 36}, "Points End", "point number of obj to end at for revolve"},
      Typing::IsTheValue};
  BoxedBar HScroll3{
      *this,
      {"HScroll3", "Text33", {0, 62, 0}, "Layers Start", "bottom cutoff (layer) of obj to be revolved"},
      Typing::IsTheValue};
  BoxedBar HScroll6{
      *this,
      {"HScroll6", "Text34", {0, 62, 62}, "Layers End", "top cutoff (layer) of obj to be revolved"},
      Typing::IsTheValue};
  ScrollBar HScroll22{*this,
                      "HScroll22",
                      {0, 62, 62},
                      "Layers Limit",
                      "total number of layers in obj (set limit of layers allowed)"};
  ScrollBar HScroll7{
      *this, "HScroll7", {0, 61, 31}, "Profile's sections", "sections that the profile was last given"};
  ScrollBar HScroll27{*this, "HScroll27", {0, 62, 0}, "Layer"};

  BoxedBar HScroll48{
      *this,
      {"HScroll48", "Text40", {0, kLastNamedLayer, 0}, "Layers Start", "first layer that gets a position"}};
  BoxedBar HScroll47{*this,
                     {"HScroll47",
                      "Text41",
                      {0, kLastNamedLayer, kLastNamedLayer},
                      "Layers End",
                      "last layer that gets a position"}};
  BoxedBar HScroll49{*this, {"HScroll49", "Text44", {0, 61, 31}, "Sections out of ("}};
  BoxedBar HScroll50{*this, {"HScroll50", "Text47", {0, 60, 31}, "Sections total"}};
  Label closing{*this, "closing", ")"};  // of "Sections out of ("
  BoxedBar HScroll46{
      *this, {"HScroll46", "Text43", {-100, 100, 1}, "Incr Amount (reciprical of 60)"}, Typing::IsTheValue};

  BoxedBar HScroll1{
      *this,
      {"HScroll1", "Text1", {-100, 100, 0}, "Corkscrew Scale", "Amount of corkscrew effect per revolution"},
      Typing::IsTheValue};
  BoxedBar HScroll5{
      *this,
      {"HScroll5", "Text3", {-1000, 1000, 0}, "Spiral Scale", "amount of spiral spacing in spiral revolve"},
      Typing::IsTheValue};
  BoxedBar HScroll15{*this,
                     {"HScroll15", "Text46", {-32, 32, 3}, "Petals X Dir", "number of petals in x dir"}};
  BoxedBar HScroll13{*this,
                     {"HScroll13", "Text11", {-32, 32, 3}, "Petals Y Dir", "number of petals in y dir"}};
  BoxedBar HScroll8{*this,
                    {"HScroll8", "Text5", {-2000, 2000, 0}, "Petal Amp", "amount of to petal size scale "},
                    Typing::IsTheValue};
  BoxedBar HScroll2{
      *this,
      {"HScroll2", "Text45", {-1000, 1000, 100}, "Multiply X", "affects in x dir (squash)", kHundredths},
      Typing::IsTheValue};
  BoxedBar HScroll16{
      *this,
      {"HScroll16", "Text12", {-1000, 1000, 100}, "Multiply Y", "affects in y dir (squash)", kHundredths},
      Typing::IsTheValue};
  BoxedBar HScroll17{*this,
                     {"HScroll17",
                      "Text13",
                      {-1000, 1000, 100},
                      "Multiply Z",
                      "affects size of  obj when revolved in z dir",
                      kHundredths},
                     Typing::IsTheValue};
  CheckBox Check14{*this, "Check14", "Reg Spa Z", false, "regular spacing of the profile's points in Z"};
  BoxedBar HScroll42{
      *this, {"HScroll42", "Text39", {-100, 100, 10}, "Spacing", "units between layers with Reg Spa Z"}};

  BoxedBar HScroll31{*this, {"HScroll31", "Text21", {-1200, 1200, 0}, "Gen Move X"}};
  BoxedBar HScroll32{*this, {"HScroll32", "Text22", {-1200, 1200, 0}, "Gen Move Y"}};
  BoxedBar HScroll33{*this, {"HScroll33", "Text23", {-1200, 1200, 0}, "Gen Move Z"}};
  BoxedBar HScroll34{*this, {"HScroll34", "Text24", {-360, 360, 0}, "Gen Angle X", "degrees"}};
  BoxedBar HScroll35{*this, {"HScroll35", "Text25", {-360, 360, 0}, "Gen Angle Y", "degrees"}};
  BoxedBar HScroll36{*this, {"HScroll36", "Text26", {-360, 360, 0}, "Gen Angle Z", "degrees"}};
  BoxedBar HScroll37{*this, {"HScroll37", "Text27", {-600, 600, 100}, "Gen Mult X", "", kHundredths}};
  BoxedBar HScroll38{*this, {"HScroll38", "Text28", {-600, 600, 100}, "Gen Mult Y", "", kHundredths}};
  BoxedBar HScroll39{*this, {"HScroll39", "Text29", {-600, 600, 100}, "Gen Mult Z", "", kHundredths}};

  CheckBox Check4{*this, "Check4", "seemless", false, "closes the mesh over the open seam"};
  CheckBox Check2{*this, "Check2", "seemless", false, "joins ends togehter as a seemless obj "};
  CheckBox Check1{*this, "Check1", "Match ends", false, "matches ends together of revolved obj"};
  CheckBox Check8{*this, "Check8", "Auto Join Ends", false, "Check to Auto joins ends "};
  CheckBox Check6{*this, "Check6", "Bottom cap", false, "check to generate bottom cap in obj"};
  CheckBox Check7{*this, "Check7", "Top Cap", false, "check to generate top cap in obj"};
  CheckBox Check9{*this, "Check9", "Cap End", false, "check to generate side cap in obj"};
  CheckBox Check10{*this, "Check10", "Cap Start", false, "check to generate sides start cap in obj"};
  CheckBox Check5{*this, "Check5", "Generate Profiles", false,
                  "check to generate profiles from revolved obj"};

  OptionButton Option2{*this,  "Option2", "Auto Revolve",
                       "auto", false,     "enables auto petals revolve when sliders are moved"};
  OptionButton Option4{*this,  "Option4", "Manual Revolve",
                       "auto", true,      "manual revolve/petal/collapse circle"};
  PushButton Command15{*this, "Command15", "Revolve Profile", "Revolve profile "};
  PushButton Command18{*this, "Command18", "Join Ends",
                       "This is for joining the final side to the first side together as needed"};

 private:
  // A bar that sets a general field of the profile.
  struct GeneralField {
    BoxedBar* bar;
    double ProfileHeader::*field;
  };

  void BindParameters();
  void BindGeneralFields();
  void AutoRevolve();
  void HScroll10_Change();
  void Command15_Click();
  void PrepareHeaders(int profile, int part);
  RevolveSettings ReadSettings() const;
  void PressCaps(const LaidGrid& body);
  void FinishEnds(const RevolveSettings& settings);
  LayoutItem DeclareLayout();

  std::vector<GeneralField> generalFields_;
};

}  // namespace pelorium
