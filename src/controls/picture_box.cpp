// Picture boxes.
#include "controls/picture_box.h"

#include <utility>

namespace pelorium {

PictureBox::PictureBox(Window& owner, std::string name, int pixelWidth, int pixelHeight, std::string toolTip)
    : Control(owner, ControlKind::PictureBox, std::move(name), {}, std::move(toolTip)),
      picture_(pixelWidth, pixelHeight) {}

void PictureBox::MarkStale() {
  isStale_ = onDraw != nullptr;
  NotifyChanged();
}

void PictureBox::DrawStale() {
  if (std::exchange(isStale_, false)) onDraw(picture_);
}

void PictureBox::ShowWhileHidden(PictureBox& other) {
  standIn_ = &other;
  other.standsFor_ = this;
}

void PictureBox::Fill(Colour colour) {
  picture().backColour = colour;
  picture().Clear();
  NotifyChanged();
}

void PictureBox::Resize(int pixelWidth, int pixelHeight) {
  if (pixelWidth <= 0 || pixelHeight <= 0) return;
  if (onResize) {
    onResize(pixelWidth, pixelHeight);
  } else {
    picture().Resize(pixelWidth, pixelHeight);
  }
  NotifyChanged();
}

}  // namespace pelorium
