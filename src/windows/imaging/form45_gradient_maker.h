// "Gradiant maker": blends from one colour to another, for the Background and the palette of the image maker.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "imaging/gradient.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Form45 : public ToolWindow {
 public:
  explicit Form45(App& app);

  BoxedBar HScroll1{*this, {"HScroll1", "startRed", kStart, "R", "red of the start"}};
  BoxedBar HScroll2{*this, {"HScroll2", "startGreen", kStart, "G", "green of the start"}};
  BoxedBar HScroll3{*this, {"HScroll3", "startBlue", kStart, "B", "blue of the start"}};
  PictureBox Picture2{*this, "Picture2", 48, 24, "starting color for gradiant"};
  BoxedBar HScroll4{*this, {"HScroll4", "endRed", kEnd, "R", "red of the end"}};
  BoxedBar HScroll5{*this, {"HScroll5", "endGreen", kEnd, "G", "green of the end"}};
  BoxedBar HScroll6{*this, {"HScroll6", "endBlue", kEnd, "B", "blue of the end"}};
  PictureBox Picture3{*this, "Picture3", 48, 24, "ending color for gradiant"};
  PictureBox Picture1{*this, "Picture1", 256, 60, "the gradient from left to right"};
  PushButton Command1{*this, "Command1", "Preview", "shows the gradient here"};
  PushButton Command2{*this, "Command2", "Apply to 2nd vert", "applies gradiant up and down"};
  PushButton Command3{*this, "Command3", "Apply to 2nd horiz", "applies gradiant left to right"};
  PushButton Command4{*this, "Command4", "Apply to pallette", "applies gradiant to pallette "};

 private:
  static constexpr BarRange kStart = {0, 255, 0}, kEnd = {0, 255, 255};

  Gradient Chosen() const;
  void ShowSwatches();
  void FillBackground(void (*fill)(Picture&, const Gradient&));
};

}  // namespace pelorium
