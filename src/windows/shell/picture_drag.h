// A drag over a picture: the press, the steps from event to event, the letting go, and the way as a shape.
#pragma once

#include <cstdint>

#include "controls/picture_box.h"

namespace pelorium {

class PictureDrag {
 public:
  // How places are kept between events. Whole ones lie in 16 bits, rounded half to even and held at their
  // limits: what the rounding takes from one step it gives to the next.
  enum class Places { Exact, Whole };
  explicit PictureDrag(Places places = Places::Exact) : places_(places) {}

  void Press(const MouseEvent& event);
  void LetGo() { DragActive = 0; }
  bool isActive() const { return DragActive != 0; }

  // From the last place to the event's, in the picture's units.
  struct Step {
    double across = 0, up = 0;
  };
  Step StepTo(const MouseEvent& event) const;
  // The event's place becomes the last.
  void Hold(const MouseEvent& event);
  Step TakeStep(const MouseEvent& event);

  const MouseEvent& pressed() const { return pressed_; }
  bool IsRight() const { return pressed_.button == MouseButton::Right; }
  float lastX() const { return LastX; }
  float lastY() const { return LastY; }
  // A line from the press to the last place.
  OverlayShape Way(Colour colour) const { return {pressed_.x, pressed_.y, LastX, LastY, colour}; }

 private:
  Places places_;
  std::int16_t DragActive = 0;  // -1 from the press to the letting go
  float LastX = 0, LastY = 0;
  MouseEvent pressed_;
};

}  // namespace pelorium
