// "Revolve Profile": sweeps the current profile around an axis into the current Part.
#pragma once

#include <vector>

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
  void ShowGeneralFields();

  // Petals, spiral and corkscrew back to none, as the plain revolve of the menu wants it.
  void ResetEffects();

  // "Points Start" as typed, held in its bar's range.
  int FirstSection() const;

  // Builds the faces of a grid of `rows` rows of `width` points in the current Part, keeps what was laid, and
  // lets the ranges follow.
  void BuildGridFaces(int width, int rows);

  ScrollBar HScroll10{*this,
                      "HScroll10",
                      {3, 61, 36},
                      "Sections",
                      "total number of points to revolve (total sides of final obj= points-1)"};
  TextBox Text8{*this, "Text8", "36"};
  ScrollBar HScroll4{*this,
                     "HScroll4",
                     {-12000, 12000, 1000, 10, 100},
                     "Degrees Per Section",
                     "number of degrees between each successive point in obj"};
  TextBox Text9{*this, "Text9", "10"};
  ScrollBar HScroll9{
      *this, "HScroll9", {0, 61, 0}, "Points Start", "point number of obj to start at for revolve"};
  TextBox Text7{*this, "Text7", "0"};
  ScrollBar HScroll11{
      *this, "HScroll11", {0, 36, 36}, "Points End", "point number of obj to end at for revolve"};
  TextBox Text6{*this, "Text6", "36"};
  ScrollBar HScroll3{
      *this, "HScroll3", {0, 62, 0}, "Layers Start", "bottom cutoff (layer) of obj to be revolved"};
  TextBox Text33{*this, "Text33", "0"};
  ScrollBar HScroll6{
      *this, "HScroll6", {0, 62, 62}, "Layers End", "top cutoff (layer) of obj to be revolved"};
  TextBox Text34{*this, "Text34", "62"};
  ScrollBar HScroll22{*this,
                      "HScroll22",
                      {0, 62, 62},
                      "Layers Limit",
                      "total number of layers in obj (set limit of layers allowed)"};
  ScrollBar HScroll7{
      *this, "HScroll7", {0, 61, 31}, "Profile's sections", "sections that the profile was last given"};
  ScrollBar HScroll27{*this, "HScroll27", {0, 62, 0}, "Layer"};

  ScrollBar HScroll48{*this, "HScroll48", {0, 119, 0}, "Layers Start", "first layer that gets a position"};
  TextBox Text40{*this, "Text40", "0"};
  ScrollBar HScroll47{*this, "HScroll47", {0, 119, 119}, "Layers End", "last layer that gets a position"};
  TextBox Text41{*this, "Text41", "119"};
  ScrollBar HScroll49{*this, "HScroll49", {0, 61, 31}, "Sections out of ("};
  TextBox Text44{*this, "Text44", "31"};
  ScrollBar HScroll50{*this, "HScroll50", {0, 60, 31}, "Sections total"};
  TextBox Text47{*this, "Text47", "31"};
  Label closing{*this, "closing", ")"};  // of "Sections out of ("
  ScrollBar HScroll46{*this, "HScroll46", {-100, 100, 1}, "Incr Amount (reciprical of 60)"};
  TextBox Text43{*this, "Text43", "1"};

  ScrollBar HScroll1{
      *this, "HScroll1", {-100, 100, 0}, "Corkscrew Scale", "Amount of corkscrew effect per revolution"};
  TextBox Text1{*this, "Text1", "0"};
  ScrollBar HScroll5{
      *this, "HScroll5", {-1000, 1000, 0}, "Spiral Scale", "amount of spiral spacing in spiral revolve"};
  TextBox Text3{*this, "Text3", "0"};
  ScrollBar HScroll15{*this, "HScroll15", {-32, 32, 3}, "Petals X Dir", "number of petals in x dir"};
  TextBox Text46{*this, "Text46", "3"};
  ScrollBar HScroll13{*this, "HScroll13", {-32, 32, 3}, "Petals Y Dir", "number of petals in y dir"};
  TextBox Text11{*this, "Text11", "3"};
  ScrollBar HScroll8{*this, "HScroll8", {-2000, 2000, 0}, "Petal Amp", "amount of to petal size scale "};
  TextBox Text5{*this, "Text5", "0"};
  ScrollBar HScroll2{*this, "HScroll2", {-1000, 1000, 100}, "Multiply X", "affects in x dir (squash)"};
  TextBox Text45{*this, "Text45", "1"};
  ScrollBar HScroll16{*this, "HScroll16", {-1000, 1000, 100}, "Multiply Y", "affects in y dir (squash)"};
  TextBox Text12{*this, "Text12", "1"};
  ScrollBar HScroll17{
      *this, "HScroll17", {-1000, 1000, 100}, "Multiply Z", "affects size of  obj when revolved in z dir"};
  TextBox Text13{*this, "Text13", "1"};
  CheckBox Check14{*this, "Check14", "Reg Spa Z", false, "regular spacing of the profile's points in Z"};
  ScrollBar HScroll42{*this, "HScroll42", {-100, 100, 10}, "Spacing", "units between layers with Reg Spa Z"};
  TextBox Text39{*this, "Text39", "10"};

  ScrollBar HScroll31{*this, "HScroll31", {-1200, 1200, 0}, "Gen Move X"};
  TextBox Text21{*this, "Text21", "0"};
  ScrollBar HScroll32{*this, "HScroll32", {-1200, 1200, 0}, "Gen Move Y"};
  TextBox Text22{*this, "Text22", "0"};
  ScrollBar HScroll33{*this, "HScroll33", {-1200, 1200, 0}, "Gen Move Z"};
  TextBox Text23{*this, "Text23", "0"};
  ScrollBar HScroll34{*this, "HScroll34", {-360, 360, 0}, "Gen Angle X", "degrees"};
  TextBox Text24{*this, "Text24", "0"};
  ScrollBar HScroll35{*this, "HScroll35", {-360, 360, 0}, "Gen Angle Y", "degrees"};
  TextBox Text25{*this, "Text25", "0"};
  ScrollBar HScroll36{*this, "HScroll36", {-360, 360, 0}, "Gen Angle Z", "degrees"};
  TextBox Text26{*this, "Text26", "0"};
  ScrollBar HScroll37{*this, "HScroll37", {-600, 600, 100}, "Gen Mult X"};
  TextBox Text27{*this, "Text27", "1"};
  ScrollBar HScroll38{*this, "HScroll38", {-600, 600, 100}, "Gen Mult Y"};
  TextBox Text28{*this, "Text28", "1"};
  ScrollBar HScroll39{*this, "HScroll39", {-600, 600, 100}, "Gen Mult Z"};
  TextBox Text29{*this, "Text29", "1"};

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
    ScrollBar* bar;
    TextBox* box;
    double ProfileHeader::*field;
    double divisor;
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
