// The boxes that show one point, one face and the counts of the current Part, and store what is typed.
#pragma once

#include <array>

#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class RecordPanel {
 public:
  // The controls are those of `owner`.
  RecordPanel(Window& owner, App& app);

  // The limits of both choices follow the Part's counts; a choice that lies outside goes back to point 0,
  // face 1.
  void FollowCounts(Counts which);
  // What the tables hold now.
  // The same after undo and redo.
  void Restore();
  void ShowRecords();
  LayoutItem Layout();

 private:
  Window& owner_;
  App& app_;

 public:
  ScrollBar VScroll1{owner_, "VScroll1", {0, 28800, 1}, "Point", "number of the point"};
  Label Label4{owner_, "Label4", "1", "number of the point"};
  TextBox Text1{owner_, "Text1", "", "x location"};
  TextBox Text2{owner_, "Text2", "", "y location"};
  TextBox Text3{owner_, "Text3", "", "z location"};
  TextBox Text4{owner_, "Text4", "", "1 is on, 0 is off"};
  PushButton Command3{owner_, "Command3", "Store point", "stores the four boxes in the point"};

  ScrollBar VScroll2{owner_, "VScroll2", {1, 70, 1}, "Face ", "number of the face"};
  Label Label3{owner_, "Label3", "1", "number of the face"};
  TextBox Text5{owner_, "Text5", "",
                "point of corner 1; a double click takes the point last picked in the view"};
  TextBox Text6{owner_, "Text6", "",
                "point of corner 2; a double click takes the point last picked in the view"};
  TextBox Text7{owner_, "Text7", "",
                "point of corner 3; a double click takes the point last picked in the view"};
  TextBox Text8{owner_, "Text8", "", "1 is on, 0 is off"};
  PushButton Command4{owner_, "Command4", "Store face", "stores the four boxes in the face"};

  TextBox Text9{owner_, "Text9", "100", "points of the Part"};
  TextBox Text10{owner_, "Text10", "200", "faces of the Part"};
  PushButton Command5{owner_, "Command5", "Set", "stores the counts in the Part"};

 private:
  std::array<TextBox*, 4> PointBoxes() { return {&Text1, &Text2, &Text3, &Text4}; }
  std::array<TextBox*, 4> FaceBoxes() { return {&Text5, &Text6, &Text7, &Text8}; }
  void ShowPoint();
  void ShowFace();
  void StorePoint();
  void StoreFace();
  void StoreCounts();
  // A change under the name of its control: in a trap, then the corners and the views.
  void Edit(const Control& control, void (RecordPanel::*change)());
};

}  // namespace pelorium
