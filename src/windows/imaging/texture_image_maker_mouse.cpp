// The mouse over the images and the palette.
#include <cmath>
#include <string>

#include "base/numbers.h"
#include "imaging/canvas.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr Colour kOutside = 1;             // what is shown and picked where there is no picture
constexpr int kSizes = 799, kRadii = 599;  // that the palette's width stands for
constexpr int kDark = 128;

// -1 outside.
int PixelUnder(const Picture& picture, const MouseEvent& event) {
  const double x = std::floor(event.x), y = std::floor(event.y);
  const bool isInside = x >= 0 && y >= 0 && x < picture.PixelWidth() && y < picture.PixelHeight();
  return isInside ? picture.PixelAt(static_cast<int>(x), static_cast<int>(y)) : -1;
}

}  // namespace

// A press is a move as well: a click leaves a mark.
void Texture::BindMouse() {
  for (const Image image : {Image::Foreground, Image::Background}) {
    PictureBox& box = BoxOf(image);
    box.onMouseDown = [this, image](const MouseEvent& event) { PressImage(image, event); };
    box.onMouseMove = [this, image](const MouseEvent& event) { MoveOver(image, event, isDrawing_); };
    box.onMouseUp = [this, image](const MouseEvent&) { ReleaseImage(image); };
    box.onWheel = [this](const WheelEvent& wheel) { PanByWheel(wheel); };
  }
  Picture11.onMouseDown = Picture11.onMouseMove = [this](const MouseEvent& event) { PickFromPalette(event); };
  Shape2.form = Shape::Form::Circle;
  Shape2.SetVisible(true);
}

void Texture::PanByWheel(const WheelEvent& wheel) {
  constexpr int kSmallChanges = 3;  // a step
  if (wheel.keys.ctrl) return;
  ScrollBar& pan = wheel.keys.shift ? HScroll22 : VScroll1;
  pan.Drag(pan.value() - wheel.steps * kSmallChanges * pan.smallChange);
}

// A profile is drawn by a press on the Foreground only; over the Background the pointer has to move.
void Texture::PressImage(Image image, const MouseEvent& event) {
  if (image == Image::Foreground) {
    Picture& snapshot = Image1.picture();
    snapshot.Resize(Picture1.measures().PixelWidth(), Picture1.measures().PixelHeight());
    snapshot.SetScale(snapshot.PixelWidth(), snapshot.PixelHeight());
    snapshot.SetPixels(Picture1.picture().Pixels());
    Image1.NotifyChanged();
  }
  isDrawing_ = true;
  MoveOver(image, event, image == Image::Foreground || !Settings().brush.drawsProfile);
}

void Texture::ReleaseImage(Image image) {
  isDrawing_ = false;
  if (image == Image::Foreground) LoadSource();
}

// With a button held or without.
void Texture::MoveOver(Image image, const MouseEvent& event, bool isDrawing) {
  const Image other = image == Image::Foreground ? Image::Background : Image::Foreground;
  Label2.SetCaption(ShortestForm(event.x));
  Label5.SetCaption(ShortestForm(event.y));
  const Colour under = ShowColourAt(BoxOf(image), event);
  PlaceRing(image, event, under);
  if (event.button == MouseButton::Right) ChooseColour(under);
  const BrushMove move{event.x, event.y, isDrawing, event.button == MouseButton::Left};
  MoveBrush({BoxOf(image).picture(), BoxOf(other).picture()}, Settings().brush, move, app_.random, app_.model,
            CurrentProfile(app_));
  BoxOf(image).NotifyChanged();
}

Colour Texture::ShowColourAt(const PictureBox& box, const MouseEvent& event) {
  const int found = PixelUnder(box.picture(), event);
  const Colour colour = found < 0 ? kOutside : static_cast<Colour>(found);
  ShowColour(colour);
  return colour;
}

// Blue is shown as it comes out of the number: the other channels are its fraction.
void Texture::ShowColour(Colour colour) {
  if (Picture3.picture().backColour != colour) Picture3.Fill(colour);
  Label12.SetCaption(std::to_string(colour));
  Label13.SetCaption(GeneralForm(colour / 65536.0));
  Label14.SetCaption(std::to_string(Green(colour)));
  Label15.SetCaption(std::to_string(Red(colour)));
  Label16.SetCaption(std::to_string(GrayLevel(static_cast<int>(colour))));
}

// Light on dark and dark on light, around what the brush covers.
void Texture::PlaceRing(Image image, const MouseEvent& event, Colour under) {
  Shape2.left = event.x - Shape2.width / 2;
  Shape2.top = event.y - Shape2.height / 2;
  Shape2.NotifyChanged();
  const float reach = static_cast<float>(Shape2.width) / 2 + 1;
  const Colour colour = GrayLevel(static_cast<int>(under)) < kDark ? kWhite : Rgb(0, 0, 0);
  BoxOf(image).overlay() = {{event.x - reach, event.y - reach, event.x + reach, event.y + reach, colour,
                             OverlayShape::Form::Ellipse}};
}

void Texture::PickFromPalette(const MouseEvent& event) {
  const Picture& palette = Picture11.picture();
  const Colour colour = ShowColourAt(Picture11, event);
  if (event.button == MouseButton::Left) ChooseColour(colour);
  if (event.button != MouseButton::Right || PixelUnder(palette, event) < 0) return;
  const auto sizeOf = [&](int sizes) {
    return 1 + static_cast<int>(
                   std::floor(event.x * static_cast<double>(sizes) / std::max(palette.PixelWidth() - 1, 1)));
  };
  ScrollBar& bar = event.keys.alt ? HScroll1 : HScroll5;
  bar.SetValue(bar.Clamped(sizeOf(event.keys.alt ? kRadii : kSizes)));
}

}  // namespace pelorium
