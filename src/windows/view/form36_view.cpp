// The "View and edit window".
#include "windows/view/form36_view.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "graphics/picture_gray.h"
#include "views/zoom.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/shell/step_name.h"
#include "windows/view/command_row.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/refresh_views.h"
#include "windows/view/shaded_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"
#include "windows/view/view_zoom.h"

namespace pelorium {

namespace {

constexpr char kZoomKeys[] = "-+=f";

// A step of the buttons that turn and move the shaded picture: degrees or model units.
constexpr double kPoseStep = 15;

struct PoseButton {
  const char *name, *caption, *toolTip;
  float ShadedPose::*turn;
  double ShadedPose::*move;
};

constexpr PoseButton kPoseButtons[] = {
    {"Command27", "Z", "shaded view: turns about Z, right button by 15 degrees, left button back",
     &ShadedPose::RotZ, nullptr},
    {"Command28", "Y", "shaded view: tilts (about X), right button by 15 degrees, left button back",
     &ShadedPose::RotX, nullptr},
    {"Command29", "X", "shaded view: spins (about Y), right button by 15 degrees, left button back",
     &ShadedPose::RotY, nullptr},
    {"Command30", "X", "shaded view: moves across, right button by 15 units, left button back", nullptr,
     &ShadedPose::ShadeMoveX},
    {"Command31", "Y", "shaded view: moves up, right button by 15 units, left button back", nullptr,
     &ShadedPose::ShadeMoveY},
    {"Command32", "Z", "shaded view: moves into the picture, right button by 15 units, left button back",
     nullptr, &ShadedPose::ShadeMoveZ},
};

}  // namespace

Form36::Form36(App& app) : ToolWindow(app, "Form36", "View and edit window"), mouse(app) {
  SetRole(WindowRole::Page);
  Picture1.followsWindow = true;
  Picture1.onMouseDown = [this](const MouseEvent& event) {
    wasUsed_ = true;
    mouse.Down(event);
  };
  Picture1.onMouseMove = [this](const MouseEvent& event) { mouse.Move(event); };
  Picture1.onMouseUp = [this](const MouseEvent&) { mouse.Up(); };
  Picture1.onDraw = [this](Picture& picture) { Paint(picture); };
  Picture1.onResize = [this](int width, int height) { Picture1_Resize(width, height); };
  Picture1.onWheel = [this](const WheelEvent& wheel) {
    wasUsed_ = true;
    TurnWheelOverView(app_, wheel);
  };
  Picture1.panAcross = &HScroll1;
  Picture1.panUp = &VScroll1;
  Picture1.onKey = [this](char character) { Picture1_KeyPress(character); };
  Picture1.picture().SetScale(15, -15);
  Picture1.ShowWhileHidden(Picture2);
  Picture2.picture().backColour = Rgb(0, 0, 0);
  Picture2.picture().Clear();
  noImage_ = Picture2.picture().Revision();
  for (ScrollBar* pan : {&HScroll1, &VScroll1}) {
    pan->onChange = [this] {
      wasUsed_ = true;
      RefreshViews(app_);
    };
  }
  Command12.onClick = [this](const Click& click) { ZoomByButton(click); };
  Command16.onClick = [this](const Click&) { app_.view->shadedView->DrawShaded(); };
  for (Control* hidden : std::initializer_list<Control*>{&Command16, &HScroll3}) hidden->SetVisible(false);
  Home.onClick = [this](const Click&) { ResetView(); };
  for (BoxedBar* pan : {&HScroll2, &VScroll2}) pan->onChange = [this] { MoveBackground(); };
  MakePoseButtons();
  HoldImage();
  commandRow = MakeCommandRow(*this);
  SetLayout(DeclareLayout());
}

void Form36::MakePoseButtons() {
  for (const PoseButton& row : kPoseButtons) {
    poseButtons.push_back(std::make_unique<PushButton>(*this, row.name, row.caption, row.toolTip));
    poseButtons.back()->onClick = [this, &row](const Click& click) {
      const double step = click.IsRight() ? kPoseStep : -kPoseStep;
      if (row.turn != nullptr) app_.shadedPose.*row.turn += static_cast<float>(step);
      if (row.move != nullptr) app_.shadedPose.*row.move += step;
      RefreshViews(app_);
    };
  }
}

LayoutItem Form36::DeclareLayout() {
  std::vector<Control*> row;
  for (const auto& button : commandRow) row.push_back(button.get());
  std::vector<Control*> mice = {&Option7,  &Option8, &Option9,   &Option10,
                                &Option11, &Option1, &Command12, &Home};
  for (std::size_t i = 0; i < poseButtons.size(); ++i) {
    if (i == 0) mice.push_back(&turnLabel);
    if (i == poseButtons.size() / 2) mice.push_back(&moveLabel);
    mice.push_back(poseButtons[i].get());
  }
  return Column({
      Compact(Flow(std::move(row))),
      Compact(Flow(std::move(mice))),
      Fold(Compact(Row({Single(Label54), Labelled("Layer or Point:", Label16), Labelled("loc x", Label4),
                        Labelled("loc y (or z)", Label5), Labelled("length", Label13),
                        Labelled("totalpoints", Label39), Labelled("total tri faces", Label47),
                        Labelled("total tri faces", Label49)})),
           Row({BarRow(HScroll2), BarRow(VScroll2), Labelled("grey level", Label53)}),
           "where the background image shows, and its grey level"),
      Stretching(Row({Stretching(Single(Picture1)), Upright(VScroll1)})),
      Single(HScroll1),
  });
}

void Form36::Load() {
  ResetView();
  app_.view->form51.Option1.SetValue(true);
}

// One unit a pixel.
void Form36::ResetView() {
  Picture& picture = Picture1.picture();
  picture.SetScale(picture.PixelWidth(), -picture.PixelHeight());
  PlaceOrigin();
}

// On a screen the origin stands in the middle. Else the pan X is half the height, not half the width: a zoom
// moves both pans by the height's change, and from there the origin stays in sight for two steps either way.
void Form36::PlaceOrigin() {
  const Picture& picture = Picture1.measures();
  const int halfHeight = picture.PixelHeight() / 2;
  const bool wasUsed = wasUsed_;
  HScroll1.SetValue(HScroll1.Clamped(Picture1.isOnScreen ? picture.PixelWidth() / 2 : halfHeight));
  VScroll1.SetValue(VScroll1.Clamped(-halfHeight));
  wasUsed_ = wasUsed;
  RefreshViews(app_);  // the pans may stand there already
}

// Units per pixel stay, and the top left corner; on a screen, while the view is unused, the place of the
// origin.
void Form36::Picture1_Resize(int pixelWidth, int pixelHeight) {
  Picture& picture = Picture1.picture();
  const double width = picture.ScaleWidth() * pixelWidth / picture.PixelWidth();
  const double height = picture.ScaleHeight() * pixelHeight / picture.PixelHeight();
  picture.Resize(pixelWidth, pixelHeight);
  picture.SetScale(width, height);
  if (!app_.started) return ResetView();
  Picture1.isOnScreen && !wasUsed_ ? PlaceOrigin() : RefreshViews(app_);
}

void Form36::ZoomByButton(const Click& click) {
  wasUsed_ = true;
  Picture& picture = Picture1.picture();
  const double oldHeight = picture.ScaleHeight();
  if (!Zoom(picture, click.IsRight() ? kZoomOut : kZoomIn)) return;
  const int back = PanAfterZoom(oldHeight, picture.ScaleHeight());
  VScroll1.SetValue(VScroll1.Clamped(VScroll1.value() - back));
  HScroll1.SetValue(HScroll1.Clamped(HScroll1.value() - back));
  RefreshViews(app_);  // the pans may both stand at their limits
}

// m arms Move, and Move Origin when Move is armed already; a letter of an armed mode disarms it.
void Form36::Picture1_KeyPress(char character) {
  wasUsed_ = wasUsed_ || std::string_view(kZoomKeys).find(character) != std::string_view::npos;
  switch (character) {
    case 'm':
      return (Option7.value() ? Option11 : Option7).SetValue(true);
    case 'r':
      return Option8.Press({});
    case 's':
      return Option9.Press({});
    case 'p':
      return Option10.Press({});
    case 'o':
      return Option1.Press({});
    case '-':
      if (Zoom(Picture1.picture(), kZoomOutGently)) RefreshViews(app_);
      return;
    case '+':
    case '=':
      return ZoomInGently(app_);
    case 'f':
      return FitModel(app_);
    default:
      return ChooseViewByKey(character);
  }
}

// The views by number.
void Form36::ChooseViewByKey(char character) {
  Form51& options = app_.view->form51;
  OptionButton* const views[] = {&options.Option1, &options.Option5, &options.Option2, &options.Option6,
                                 &options.Option4, nullptr,          &options.Option16};
  const int number = character - '1';
  if (number < 0 || number >= static_cast<int>(std::size(views))) return;
  views[number] == nullptr ? options.Command2.Press({}) : views[number]->SetValue(true);
}

void Form36::Redraw(Content content) {
  content_ = content;
  Picture1.MarkStale();
  if (app_.drawsAtOnce) Picture1.DrawStale();
}

void Form36::Paint(Picture& picture) {
  if (content_ == Content::Shaded) {
    app_.view->shadedView->Paint();
  } else {
    PaintViews(app_, picture);
  }
}

void Form36::ShowTotals() {
  Label39.SetCaption(std::to_string(ReadModel(app_).Part(CurrentPart(app_)).maxpoints));
  Label47.SetCaption(std::to_string(ReadModel(app_).Part(0).maxfaces));
  Label49.SetCaption(std::to_string(ReadModel(app_).Part(1).maxfaces));
}

void Form36::DisarmModes() {
  for (OptionButton* mode : {&Option1, &Option7, &Option8, &Option9, &Option10, &Option11}) {
    mode->SetValue(false);
  }
}

void Form36::ShowGreyLevel(Colour colour) {
  const int red = Red(colour), green = Green(colour), blue = Blue(colour);
  Label53.SetCaption(std::to_string(red) + " " + std::to_string(green) + " " + std::to_string(blue) +
                     "  grey " + std::to_string(GrayLevel(static_cast<int>(colour))));
}

void Form36::TakeImage(const Picture& image) {
  Picture& to = Picture2.picture();
  to.Resize(kImageWidth, kImageHeight);
  to.SetScale(kImageWidth, kImageHeight);
  std::vector<std::uint32_t> pixels = to.Pixels();
  const int width = std::min(image.PixelWidth(), kImageWidth);
  for (int y = 0; y < std::min(image.PixelHeight(), kImageHeight); ++y) {
    std::copy_n(image.Pixels().begin() + std::ptrdiff_t{y} * image.PixelWidth(), width,
                pixels.begin() + std::ptrdiff_t{y} * kImageWidth);
  }
  to.SetPixels(pixels);
  ImageChanged();
}

void Form36::ImageChanged() {
  Picture2.NotifyChanged();
  if (onImageChanged) onImageChanged();
}

void Form36::ShowBackground() {
  LayBackground();
  RefreshViews(app_);
}

void Form36::LayBackground() {
  const Picture& image = Picture2.picture();
  Picture1.picture().SetBackdrop(
      std::make_shared<Backdrop>(Backdrop{image.PixelWidth(), image.PixelHeight(),
                                          std::make_shared<const std::vector<std::uint32_t>>(image.Pixels()),
                                          HScroll2.value(), VScroll2.value()}));
}

// Undo and redo bring back the image, whether it lies behind the model, and whether there is one at all.
void Form36::HoldImage() {
  constexpr int kLies = 1, kIsThere = 2;
  app_.history->held.Hold(
      Picture2,
      [this] {
        const bool isThere = Picture2.measures().Revision() != noImage_;
        return (Picture1.measures().backdrop() ? kLies : 0) | (isThere ? kIsThere : 0);
      },
      [this](int extra) {
        if ((extra & kLies) != 0) {
          LayBackground();
        } else {
          Picture1.picture().SetBackdrop(nullptr);
        }
        noImage_ = (extra & kIsThere) != 0 ? 0 : Picture2.measures().Revision();
        ImageChanged();
      });
  app_.history->NameBy(Picture1, [this] { return NameOfStroke(); });
}

// By the mode that is armed, else by the view in which clicks draw, else by the window.
std::string Form36::NameOfStroke() const {
  for (const OptionButton* mode : {&Option7, &Option8, &Option9, &Option10, &Option11, &Option1}) {
    if (mode->value()) return StepName(*mode);
  }
  const Form51& options = app_.view->form51;
  for (const OptionButton* drawing : {&options.Option1, &options.Option3}) {
    if (drawing->value()) return StepName(*drawing);
  }
  return caption();
}

void Form36::ClearBackground() {
  Picture1.picture().SetBackdrop(nullptr);
  Label53.SetCaption({});
  Picture2.picture().Clear();
  ImageChanged();
  noImage_ = Picture2.picture().Revision();
  RefreshViews(app_);
}

int Form36::ImageGrayAt(double x, double y) const {
  const Picture& image = Picture2.picture();
  return image.Revision() == noImage_ ? -1 : GrayAt(image, x, kViewHeight - y);
}

void Form36::MoveBackground() {
  if (!Picture1.picture().backdrop()) return;
  auto moved = std::make_shared<Backdrop>(*Picture1.picture().backdrop());
  moved->left = HScroll2.value();
  moved->top = VScroll2.value();
  Picture1.picture().SetBackdrop(std::move(moved));
  RefreshViews(app_);
}

}  // namespace pelorium
