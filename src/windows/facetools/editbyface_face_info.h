// "Face Info/Edit": one point and one face of the current Part.
#pragma once

#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class EditByFace : public ToolWindow {
 public:
  explicit EditByFace(App& app);

  // The limits of both choices follow the Part's counts; a choice that lies outside goes back to point 0,
  // face 1.
  void CountsChanged(Counts which) override;

  ScrollBar VScroll1{*this, "VScroll1", {0, 28800, 1}, "Point"};
  Label Label4{*this, "Label4", "1"};
  ScrollBar VScroll2{*this, "VScroll2", {1, 70, 1}, "Face "};
  Label Label3{*this, "Label3", "1"};
  TextBox Text9{*this, "Text9", "100", "points of the Part"};
  TextBox Text10{*this, "Text10", "200", "faces of the Part"};

 private:
  void VScroll1_Change();
  void VScroll2_Change();
};

}  // namespace pelorium
