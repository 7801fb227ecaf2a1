// The "View and edit window": the picture of the model, the mouse on it, and a row of the commonest commands.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shape.h"
#include "controls/text_box.h"
#include "windows/shell/tool_window.h"
#include "windows/view/view_mouse.h"

namespace pelorium {

class App;

inline constexpr int kViewWidth = 964, kViewHeight = 637;  // pixels of the view when no screen says otherwise

// Pixels of the image that gray levels are read from.
inline constexpr int kImageWidth = 968, kImageHeight = 670;

class Form36 : public ToolWindow {
 public:
  explicit Form36(App& app);

  // Gives the view one unit a pixel with the origin in it, and shows the profile view from the front.
  void Load() override;

  // Left zooms in, right zooms out; the pans follow.
  void ZoomByButton(const Click& click);

  // What the picture is to show: it is painted when the event ends, or when someone looks.
  enum class Content { Wire, Shaded };
  void Redraw(Content content);

  // The totals of the Parts, as they follow each refresh.
  void ShowTotals();

  // No edit mode stays armed behind a new tool.
  void DisarmModes();

  // The colour under the mouse, while an image lies behind the model.
  void ShowGreyLevel(Colour colour);

  // Picture2 gets the image from its top left on, a pixel a pixel, and is black where the image ends.
  void TakeImage(const Picture& image);
  // The pixels of Picture2 changed: whoever shows them hears of it.
  void ImageChanged();
  std::function<void()> onImageChanged;

  // Lays Picture2 behind the model; takes it away and blackens it.
  void ShowBackground();
  void ClearBackground();

  // The gray level of the image under a place of the model; -1 outside, and while no image was put there
  // since the last ClearBackground. The image's first row lies kViewHeight units above the origin.
  int ImageGrayAt(double x, double y) const;

  ViewMouse mouse;  // on Picture1

  PictureBox Picture1{*this, "Picture1", kViewWidth, kViewHeight};
  // Holds an image whose gray levels shape profiles and Parts; shown as the background of Picture1.
  PictureBox Picture2{*this, "Picture2", kImageWidth, kImageHeight};
  Shape Shape5{*this, "Shape5"};  // the area of a pick
  ScrollBar HScroll1{*this, "HScroll1", {-4000, 4000, 0, 10, 100}, "pan X"};
  ScrollBar VScroll1{*this, "VScroll1", {-4000, 4000, 0, 10, 100}, "pan Y"};
  Label Label54{*this, "Label54", ""};
  Label Label16{*this, "Label16", "0"};
  Label Label4{*this, "Label4", "0", "place of the mouse, across"};
  Label Label5{*this, "Label5", "0", "place of the mouse, up"};
  Label Label13{*this, "Label13", "0", "length of the line from the last profile point to the mouse"};
  Label Label39{*this, "Label39", "0", "points of the current Part"};
  Label Label47{*this, "Label47", "0", "total tri faces of Part 0"};
  Label Label49{*this, "Label49", "0", "total tri faces of Part 1"};
  Label Label53{*this, "Label53", "",
                "red, green, blue and grey level of the background under the last click"};

  // Where the background shows; what is read of it keeps its place.
  BoxedBar HScroll2{
      *this,
      {"HScroll2", "Text1", {-1000, 1000, 0, 1, 50}, "background X", "moves the background image across"}};
  BoxedBar VScroll2{*this,
                    {"VScroll2", "Text2", {-1000, 1000, 0, 1, 50}, "Y", "moves the background image down"}};

  // A second bar across; nothing moves with it.
  ScrollBar HScroll3{*this, "HScroll3", {-1000, 1000, 0, 1, 50}, "background X 2"};

  OptionButton Option7{*this, "Option7", "&Move |", "mode", false, "moves the chosen points", kDisarms};
  OptionButton Option8{
      *this, "Option8", "&Rotate |", "mode", false, "turns the chosen points about the origin", kDisarms};
  OptionButton Option9{
      *this, "Option9", "&Scale |", "mode", false, "scales the chosen points about the origin", kDisarms};
  OptionButton Option10{
      *this, "Option10", "&Pick Points |", "mode", false, "switches points on and off by area", kDisarms};
  OptionButton Option11{*this, "Option11", "&Move Origin", "mode", false, "moves the origin", kDisarms};
  OptionButton Option1{*this, "Option1", "M&ove Point |", "mode", false, "set to none on the left", kDisarms};
  PushButton Command12{*this, "Command12", "ZM", "left button zooms in, right button zooms out"};

  // Draws the shaded picture; RefreshViews presses it while the shaded view is chosen.
  PushButton Command16{*this, "Command16", "DrawShaded"};

  PushButton Home{*this, "Home", "Home", "back to one unit a pixel, with the origin in sight"};

  // Turns and moves of the shaded picture.
  Label turnLabel{*this, "turnLabel", "turn"}, moveLabel{*this, "moveLabel", "move"};
  std::vector<std::unique_ptr<PushButton>> poseButtons;

  // The row of commands, from the command table.
  std::vector<std::unique_ptr<PushButton>> commandRow;

 private:
  static constexpr auto kDisarms = OptionButton::WhenArmed::IsDisarmed;

  void Paint(Picture& picture);
  void Picture1_Resize(int pixelWidth, int pixelHeight);
  void Picture1_KeyPress(char character);
  void ChooseViewByKey(char character);
  void ResetView();
  void PlaceOrigin();
  void MakePoseButtons();
  void MoveBackground();
  void LayBackground();
  void HoldImage();
  std::string NameOfStroke() const;
  LayoutItem DeclareLayout();

  Content content_ = Content::Wire;
  bool wasUsed_ = false;       // zoomed, panned or pressed upon
  std::uint64_t noImage_ = 0;  // revision of Picture2 while it counts as empty
};

}  // namespace pelorium
