// "Gray Levels Edit": paints, blurs, inverts and sprays gray levels on the image behind the model.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "imaging/gray_levels.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class SpecialEffects3 : public ToolWindow {
 public:
  explicit SpecialEffects3(App& app);

  // The image may have come from anywhere meanwhile.
  void Show() override;

  PictureBox Picture1{*this, "Picture1", 968, 670,
                      "left button paints, right button or Ctrl blends, Shift sprays"};
  BoxedBars sliders;  // Slider1 to Slider13
  CheckBox Check1{*this, "Check1", "Fallow Profile", false, "a press draws the outline of the profile"};
  BoxedBar HScroll1{*this,
                    {"HScroll1",
                     "profile",
                     {0, 36, 0, 1, 5},
                     "Profile (Top View Based)",
                     "the profile that a press draws in X and Y"}};
  PictureBox Picture2{*this, "Picture2", 256, 40, "picks the gray level"};
  std::vector<std::unique_ptr<PictureBox>> swatches;          // Picture4 to Picture14
  std::vector<std::unique_ptr<PushButton>> numberedPictures;  // Command34 to Command43
  Label rightHint{*this, "rightHint", "Right But=Blend Effect",
                  "the brush goes half way to what lies about it"};
  Label ctrlHint{*this, "ctrlHint", "Ctrl= Blend Effect", "the brush goes half way to what lies about it"};
  Label shiftHint{*this, "shiftHint", "Shift=Spray Effect", "dots at random places within the brush"};
  PushButton Command1{*this, "Command1", "4 X4   Blur",
                      "each sample becomes the mean of the sixteen about it"};
  PushButton Command5{*this, "Command5", "Fine Blur", "slower but finer blur effect"};
  PushButton Command4{*this, "Command4", "Invert", "invert values--negative effect"};
  PushButton Command6{*this, "Command6", "random", "random paint effect"};
  ProgressBar ProgressBar2{*this, "ProgressBar2", kRows};

 private:
  static constexpr int kRows = 670;

  int Slider(int number) const;
  GrayBrush Brush() const;
  void MakeSwatches();
  void MakeNumberedPictures();
  void BindMouse();
  void BindEffects();
  LayoutItem DeclareLayout();

  // Changes the image and lays it behind the model.
  void Change(const Control& control, const std::function<void(Picture&)>& change);
  void Blur(const GrayBlur& blur, Picture& image);
  void Press(const MouseEvent& event);
  void Stroke(const MouseEvent& event);
  void Release();
  void FollowImage(Picture& shown) const;

  std::optional<MouseButton> pressed_;  // of the stroke that is going on
};

}  // namespace pelorium
