// "Extrude Profile": turns the current profile into the mesh of the current Part. All its settings live in
// the profile; the bars that write them are rows of a table in the source.
#pragma once

#include <string_view>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "core/model_store.h"
#include "geometry/extrude.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Form55 : public ToolWindow {
 public:
  explicit Form55(App& app);

  // The settings of the current profile show; nothing is written.
  void ProfileChosen() override;
  void RecordsRestored() override;
  // The general fields show anew; they were changed elsewhere.
  void ShowGeneralFields();
  // The current Part was chosen elsewhere.
  void PartChosen() override;

  ScrollBar HScroll35{
      *this, "HScroll35", {0, kMaxProfile, 0, 1, 5}, "Profile #", "the profile that is extruded"};
  ScrollBar HScroll2{*this, "HScroll2", {0, kUserParts - 1, 0, 1, 1}, "Part #", "the Part that is made"};
  BoxedBar HScroll24{*this,
                     {"HScroll24",
                      "Text29",
                      {0, kMaxLayer, 12, 1, 5},
                      "Sections",
                      "Sets number of Sections created in extrude "}};
  CheckBox Check2{*this, "Check2", "Bottom Cap", false, "closes the body on its last layer"};
  CheckBox Check3{*this, "Check3", "Top Cap", false, "closes the body on its first layer"};
  CheckBox Check1{*this, "Check1", "Auto Extrude", false, "extrudes anew at every change of a setting"};
  CheckBox Check5{*this, "Check5", "additive", false, "adds to the Part's points as they stand"};
  CheckBox Check6{*this, "Check6", "Auto Calc Deg", false,
                  "spins each layer by 360 degrees divided by the sections"};
  CheckBox Check8{*this, "Check8", "Seemless", false, "moves points that lie close together onto one place"};
  PushButton Command33{*this, "Command33", "Clear Settings", "resets everthing back to default settings"};
  PushButton Command30{*this, "Command30", "Extrude", "Extrude profile along path and effects"};

  BoxedBar HScroll16{*this,
                     {"HScroll16", "Text22", {0, kMaxLayer, 0, 1, 5}, "Layer", "the layer that is bent"}};
  BoxedBar HScroll6{*this,
                    {"HScroll6", "Text14", {0, kMaxLayer, 0, 1, 5}, "Section", "the section that is bent"}};
  // The profile's and the layer's selector once more, where nobody sees them.
  ScrollBar HScroll36{*this, "HScroll36", {0, kMaxProfile, 0, 1, 5}, "Profile #"};
  ScrollBar HScroll4{*this, "HScroll4", {0, kMaxLayer, 0, 1, 5}, "Layer"};
  CheckBox Check4{*this, "Check4", "Progressive", false,
                  "layer settings go to all layers from the selected one to the last"};

  // Bars that move others together.
  ScrollBar HScroll34{
      *this, "HScroll34", {-1000, 1000, 100, 1, 10}, "Both X and Z", "Mult X and Mult Z together"};
  ScrollBar HScroll12{
      *this, "HScroll12", {-1000, 1000, 100, 1, 10}, "both", "mult X and mult Y of the section together"};
  ScrollBar HScroll43{
      *this, "HScroll43", {-600, 600, 100, 1, 10}, "Scale XYZ ", "Mult X, Mult Y and Mult Z together"};

 private:
  void BindFields();
  void BindPickers();
  void WriteField(std::size_t row);
  double ReadField(std::size_t row) const;
  void ShowFields();
  void AutoExtrude();
  void HScroll24_Change();
  void Cap_Click();
  void Command33_Click();
  void Command30_Click();
  ExtrudeSettings PrepareHeaders();
  int MeshedRows(const ExtrudeSettings& settings) const;
  void FinishMesh(const ExtrudeSettings& settings, int next);
  void ShowFieldsLike(std::size_t row);
  void PressCaps(const ExtrudeSettings& settings);
  void FinishRing(const ExtrudeSettings& settings);
  ScrollBar& FieldBar(std::string_view name);
  LayoutItem FieldFrame(std::string_view title);
  LayoutItem DeclareLayout();

  BoxedBars fields_;
  bool showing_ = false;  // the ticks are being filled from the profile
};

}  // namespace pelorium
