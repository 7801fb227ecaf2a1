// "Noise maker": a picture of gradient noise, for the image behind the model and for the clipboard.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class FrmPerlinNoise : public ToolWindow {
 public:
  explicit FrmPerlinNoise(App& app);

  PictureBox Picture1{*this, "Picture1", 600, 600, "the noise of the last run"};
  BoxedBar HScroll2{*this, {"HScroll2", "width", {128, 964, 600}, "Width", "columns of the picture"}};
  BoxedBar HScroll1{*this, {"HScroll1", "height", {128, 660, 600}, "Height", "rows of the picture"}};
  BoxedBar hscScale{
      *this,
      {"hscScale", "scale", {1, 16, 1, 1, 1}, "Scale: ", "cells of the noise across half the picture"}};
  BoxedBar hscOctaves{
      *this, {"hscOctaves", "octaves", {1, 6, 1, 1, 1}, "Octaves: ", "finer noise on top of the coarse"}};
  CheckBox chkAbsolute{*this, "chkAbsolute", "&Use Absolute Value", false, "checked creates a darker effect"};
  PushButton Command2{
      *this, "Command2", "&Go",
      "paints the noise here and behind the model; its gray and its random levels are those of "
      "the image maker"};
  PushButton Command1{*this, "Command1", "send to clipboard", "the picture as it is here"};
  ProgressBar ProgressBar1{*this, "ProgressBar1", 600};

 private:
  void MakeNoise();
};

}  // namespace pelorium
