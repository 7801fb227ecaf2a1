// A picture that a person sees and points at.
#pragma once

#include "controls/control.h"
#include "graphics/picture.h"

namespace pelorium {

// A mouse event on a picture, in the picture's user units.
struct MouseEvent {
  float x = 0, y = 0;
  MouseButton button = MouseButton::Left;
  Keys keys;
};

// The wheel turned over a picture, away from the person counting up.
struct WheelEvent {
  static constexpr int kMostSteps = 100;  // either way
  int steps = 0;
  float x = 0, y = 0;
  Keys keys;
};

class ScrollBar;

class PictureBox : public Control {
 public:
  PictureBox(Window& owner, std::string name, int pixelWidth, int pixelHeight, std::string toolTip = {});

  // The picture as it is to be seen, or to be drawn on: what is stale is drawn first.
  Picture& picture() {
    if (isStale_) DrawStale();
    return picture_;
  }
  const Picture& picture() const { return const_cast<PictureBox*>(this)->picture(); }
  // Its size and scale, and the places of pixels. What is stale stays so.
  const Picture& measures() const { return picture_; }
  // The shapes over it, which are no pixels.
  std::vector<OverlayShape>& overlay() { return picture_.overlay; }

  // The pixels no longer show what they should: onDraw paints them when someone looks, or at DrawStale. A box
  // without onDraw never is stale.
  void MarkStale();
  void DrawStale();
  bool isStale() const { return isStale_; }
  std::function<void(Picture&)> onDraw;

  // True when the box takes the size its window gives it; the picture is then resized through onResize.
  bool followsWindow = false;
  // True when its present size is what a screen has room for: what it shows is then opened in its middle.
  bool isOnScreen = false;

  PropertyValue Value() const override { return name(); }
  void SetOwnValue(const PropertyValue&) override {}

  // The button of the last press that was not let go yet: what a move carries that tells of none.
  MouseButton heldButton = MouseButton::None;

  // While this box is hidden the other one is seen in its place and at its size, and the window stays as it
  // is.
  void ShowWhileHidden(PictureBox& other);
  bool hasStandIn() const { return standIn_ != nullptr; }
  // The box whose picture is seen where this one stands.
  const PictureBox& Seen() const { return visible() || standIn_ == nullptr ? *this : *standIn_; }
  // The hidden box in whose place this one is seen; null while there is none.
  PictureBox* SeenInPlaceOf() const {
    return standsFor_ == nullptr || standsFor_->visible() ? nullptr : standsFor_;
  }

  std::function<void(const MouseEvent&)> onMouseDown, onMouseMove, onMouseUp;
  std::function<void(const WheelEvent&)> onWheel;

  // The bars that a person moves by dragging the picture with the middle button: a unit for a unit.
  ScrollBar* panAcross = nullptr;
  ScrollBar* panUp = nullptr;

  // The box was given that many pixels; without a handler the picture just gets the new size.
  std::function<void(int pixelWidth, int pixelHeight)> onResize;

  void Resize(int pixelWidth, int pixelHeight);
  // One colour all over, as the ground of what is drawn from then on.
  void Fill(Colour colour);

 private:
  void BeforeShowingOrHiding() override { DrawStale(); }

  Picture picture_;
  bool isStale_ = false;
  PictureBox *standIn_ = nullptr, *standsFor_ = nullptr;
};

}  // namespace pelorium
