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

class PictureBox : public Control {
 public:
  PictureBox(Window& owner, std::string name, int pixelWidth, int pixelHeight, std::string toolTip = {});

  Picture picture;
  // True when the box takes the size its window gives it; the picture is then resized through onResize.
  bool followsWindow = false;

  PropertyValue Value() const override { return name(); }
  void SetOwnValue(const PropertyValue&) override {}

  std::function<void(const MouseEvent&)> onMouseDown, onMouseMove, onMouseUp;
  // The box was given that many pixels; without a handler the picture just gets the new size.
  std::function<void(int pixelWidth, int pixelHeight)> onResize;

  void Resize(int pixelWidth, int pixelHeight);
};

}  // namespace pelorium
