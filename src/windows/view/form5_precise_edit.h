// "Precise Edit": the origin, the chosen point range, the layers, and the amounts of numeric edits.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/text_box.h"
#include "core/axes.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;
struct EditParams;

// The point range reaches as far before a Part says otherwise.
inline constexpr int kStartPoints = 7700;

// "Pts/ layer" opens to this at most: the widest ring of a revolve has half as many.
inline constexpr int kMostPointsPerLayer = 120;

class Form5 : public ToolWindow {
 public:
  explicit Form5(App& app);

  // Sets the limits of the start.
  void Load() override;
  void PartChosen() override;
  void CountsChanged(Counts which) override;
  void CountsRestored() override;

  // The axis of "Flip", which mirror images flip along as well.
  Axis FlipAxis() const;

  TextBox Text5{*this, "Text5", "0", "pivot of all turns and scales, X"};
  TextBox Text9{*this, "Text9", "0", "pivot of all turns and scales, Y"};
  TextBox Text3{*this, "Text3", "0", "pivot of all turns and scales, Z"};
  BoxedBar HScroll20{
      *this, {"HScroll20", "Text38", {1, kStartPoints, 1, 1, 36}, "Points Start", "first chosen point"}};
  BoxedBar HScroll25{
      *this, {"HScroll25", "Text39", {0, kStartPoints, 60, 1, 36}, "Points End", "last chosen point"}};
  PushButton Command7{*this, "Command7", "<<", kPointsDownTip};
  PushButton Command8{*this, "Command8", ">>", kPointsUpTip};
  BoxedBar HScroll1{*this, {"HScroll1", "Text1", {0, 62, 0}, "Layers Start", "first layer"}};
  BoxedBar HScroll2{*this, {"HScroll2", "Text2", {0, 62, 62}, "Layers End", "last layer"}};
  PushButton Command11{*this, "Command11", "<<", kLayersDownTip};
  PushButton Command13{*this, "Command13", ">>", kLayersUpTip};
  BoxedBar HScroll5{*this,
                    {"HScroll5", "Text6", {0, 62, 32}, "Pts/ layer", "points of one ring of the Part"}};
  PushButton Command19{*this, "Command19", "Set", kSetTip};
  BoxedBar HScroll10{*this, {"HScroll10", "Text41", {1, 500, 1}, "Move amnt", "units of one move"}};
  TextBox Text19{*this, "Text19", "1", "degrees of one turn"};
  TextBox Text10{*this, "Text10", ".99", "factor of the right button"};
  TextBox Text20{*this, "Text20", "1.01", "factor of the left button"};
  BoxedBar HScroll9{*this,
                    {"HScroll9", "Text4", {1, 1000, 1}, "Step", "walk through the range by this step"}};
  BoxedBar HScroll11{*this, {"HScroll11", "Text8", {0, 1, 0, 1, 1}, "part #", "Part of the edit"}};
  CheckBox Check2{*this, "Check2", "Enable Mirror Image Single Point when moved"};
  OptionButton Option1{*this, "Option1", "Z", "flip", false, "axis of Flip"};
  OptionButton Option2{*this, "Option2", "Y", "flip", false, "axis of Flip"};
  OptionButton Option3{*this, "Option3", "X", "flip", true, "axis of Flip"};
  OptionButton Option4{*this, "Option4", "X=Y", "pair", true, "axes that are set equal"};
  OptionButton Option5{*this, "Option5", "X=Z", "pair", false, "axes that are set equal"};
  OptionButton Option6{*this, "Option6", "Y=Z", "pair", false, "axes that are set equal"};
  Label Label1{*this, "Label1", "", "counts of the Part after its last new faces"};

  // Moves, turns, scales and the like, from a table.
  std::vector<std::unique_ptr<PushButton>> editButtons;

 private:
  static constexpr const char* kPointsDownTip =
      "either button: Points Start and Points End go back by Pts/ layer, not below point 1";
  static constexpr const char* kPointsUpTip =
      "either button: Points Start and Points End go on by Pts/ layer, not past the Part's last point";
  static constexpr const char* kLayersDownTip =
      "either button: Layers Start and Layers End go back by 1, and their points are chosen";
  static constexpr const char* kLayersUpTip =
      "either button: Layers Start and Layers End go on by 1, and their points are chosen";
  static constexpr const char* kSetTip = "either button: Pts/ layer becomes that of the Part";

  void BindRanges();
  void MakeEditButtons();
  EditParams ReadEditParams(const Click& click) const;
  void ShiftPoints(int layers);
  void ShiftLayers(int layers);
  void ChoosePoints(int first, int last);
  void Command19_Click();
  LayoutItem ButtonRow(std::string_view frame, std::vector<Control*> before = {}) const;
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
