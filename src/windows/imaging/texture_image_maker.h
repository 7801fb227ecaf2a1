// "Image maker": the two pictures that images are made of.
#pragma once

#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Texture : public ToolWindow {
 public:
  explicit Texture(App& app);

  ScrollBar HScroll35{*this, "HScroll35", {1, 2, 1}, "Picture", "1 shows the foreground, 2 the background"};
  Label Label32{*this, "Label32", "Foreground", "the picture that shows"};
  PictureBox Picture1{*this, "Picture1", kWidth, kHeight,
                      "the foreground, which materials take their maps from"};
  PictureBox Picture5{*this, "Picture5", kWidth, kHeight, "the background"};

 private:
  static constexpr int kWidth = 970, kHeight = 670;  // pixels

  void HScroll35_Change();
};

}  // namespace pelorium
