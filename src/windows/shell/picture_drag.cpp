// Drags over pictures.
#include "windows/shell/picture_drag.h"

#include <algorithm>
#include <limits>

#include "base/numbers.h"

namespace pelorium {

namespace {

float Whole(float place) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<float>(std::clamp<double>(RoundHalfEven(place), Limits::min(), Limits::max()));
}

}  // namespace

void PictureDrag::Press(const MouseEvent& event) {
  DragActive = -1;
  pressed_ = event;
  Hold(event);
}

PictureDrag::Step PictureDrag::StepTo(const MouseEvent& event) const {
  return {double{event.x} - LastX, double{event.y} - LastY};
}

void PictureDrag::Hold(const MouseEvent& event) {
  const bool isWhole = places_ == Places::Whole;
  LastX = isWhole ? Whole(event.x) : event.x;
  LastY = isWhole ? Whole(event.y) : event.y;
}

PictureDrag::Step PictureDrag::TakeStep(const MouseEvent& event) {
  const Step step = StepTo(event);
  Hold(event);
  return step;
}

}  // namespace pelorium
