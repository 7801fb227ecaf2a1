// The "View and edit window".
#include "windows/form36_view.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/numbers.h"
#include "views/zoom.h"
#include "windows/app.h"
#include "windows/command_table.h"
#include "windows/form51_view_options.h"
#include "windows/formulas_edit_profile.h"
#include "windows/refresh_views.h"
#include "windows/shared_parameters.h"

namespace pelorium {

namespace {

constexpr int kLengthDecimals = 2;
constexpr Colour kNextLineColour = Rgb(250, 0, 0);

std::string WholeText(double value) { return GeneralForm(std::floor(value)); }

}  // namespace

Form36::Form36(App& app) : Window(app.host, "Form36", "View and edit window"), app_(app) {
  Picture1.followsWindow = true;
  Picture1.onMouseDown = [this](const MouseEvent& event) { Picture1_MouseDown(event); };
  Picture1.onMouseMove = [this](const MouseEvent& event) { Picture1_MouseMove(event); };
  Picture1.onResize = [this](int width, int height) { Picture1_Resize(width, height); };
  Picture1.onKey = [this](char character) { Picture1_KeyPress(character); };
  Picture1.picture.SetScale(15, -15);
  Picture2.picture.backColour = Rgb(0, 0, 0);
  Picture2.picture.Clear();
  for (ScrollBar* pan : {&HScroll1, &VScroll1}) pan->onChange = [this] { RefreshViews(app_); };
  Command12.onClick = [this](const Click& click) { ZoomByButton(click); };
  Home.onClick = [this](const Click&) { ResetView(); };
  // What the mouse does in these modes is still to come.
  for (OptionButton* mode : {&Option7, &Option8, &Option9, &Option10, &Option11, &Option1}) {
    mode->SetEnabled(false);
  }
  commandRow = MakeCommandRow(*this);
  SetLayout(DeclareLayout());
}

LayoutItem Form36::DeclareLayout() {
  std::vector<Control*> row;
  for (const auto& button : commandRow) row.push_back(button.get());
  return Column({
      Flow(std::move(row)),
      Flow({&Option7, &Option8, &Option9, &Option10, &Option11, &Option1, &Command12, &Home}),
      Row({Single(Label54), Labelled("Layer or Point:", Label16), Labelled("loc x", Label4),
           Labelled("loc y (or z)", Label5), Labelled("length", Label13)}),
      Row({Labelled("totalpoints", Label39), Labelled("total tri faces, Part 0", Label47),
           Labelled("Part 1", Label49)}),
      Stretching(Row({Stretching(Single(Picture1)), Single(VScroll1)})),
      Single(HScroll1),
  });
}

void Form36::Load() {
  ResetView();
  app_.form51.Option1.SetValue(true);
}

// One unit a pixel. The pan X is half the height, not half the width: a zoom moves both pans by the height's
// change, and from there the origin stays in sight for two steps either way.
void Form36::ResetView() {
  Picture& picture = Picture1.picture;
  picture.SetScale(picture.PixelWidth(), -picture.PixelHeight());
  const int half = picture.PixelHeight() / 2;
  HScroll1.SetValue(HScroll1.Clamped(half));
  VScroll1.SetValue(VScroll1.Clamped(-half));
  RefreshViews(app_);  // the pans may stand there already
}

// Units per pixel and the top left corner stay where they are.
void Form36::Picture1_Resize(int pixelWidth, int pixelHeight) {
  Picture& picture = Picture1.picture;
  const double width = picture.ScaleWidth() * pixelWidth / picture.PixelWidth();
  const double height = picture.ScaleHeight() * pixelHeight / picture.PixelHeight();
  picture.Resize(pixelWidth, pixelHeight);
  picture.SetScale(width, height);
  app_.started ? RefreshViews(app_) : ResetView();
}

void Form36::ZoomByButton(const Click& click) {
  Picture& picture = Picture1.picture;
  const double oldHeight = picture.ScaleHeight();
  if (!Zoom(picture, click.IsRight() ? kZoomOut : kZoomIn)) return;
  const int back = PanAfterZoom(oldHeight, picture.ScaleHeight());
  VScroll1.SetValue(VScroll1.Clamped(VScroll1.value() - back));
  HScroll1.SetValue(HScroll1.Clamped(HScroll1.value() - back));
  RefreshViews(app_);  // the pans may both stand at their limits
}

void Form36::Picture1_KeyPress(char character) {
  if (character != '-') return;
  if (Zoom(Picture1.picture, kZoomOutGently)) RefreshViews(app_);
}

void Form36::ShowTotals() {
  Label39.SetCaption(std::to_string(app_.model.Part(CurrentPart(app_)).maxpoints));
  Label47.SetCaption(std::to_string(app_.model.Part(0).maxfaces));
  Label49.SetCaption(std::to_string(app_.model.Part(1).maxfaces));
}

void Form36::DisarmModes() {
  for (OptionButton* mode : {&Option1, &Option7, &Option8, &Option9, &Option10, &Option11}) {
    mode->SetValue(false);
  }
}

void Form36::Picture1_MouseDown(const MouseEvent& event) {
  const bool draws = app_.form51.Option1.value() && app_.form51.Check8.value();
  if (draws && app_.formulas.SubView() != Projection::Oblique) DrawPoint(event);
}

void Form36::DrawPoint(const MouseEvent& event) {
  ProfileClick click;
  click.plane = app_.formulas.view.Plane();
  click.across = std::floor(event.x) - HScroll1.value();
  click.up = std::floor(event.y) - VScroll1.value();
  click.third = app_.formulas.HScroll28.value();
  click.advances = event.button == MouseButton::Left;
  const int layer = DrawProfilePoint(app_.model, CurrentProfile(app_), click);
  Label16.SetCaption(std::to_string(layer));
  app_.form51.ShowProfileCount();
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void Form36::Picture1_MouseMove(const MouseEvent& event) {
  Label4.SetCaption(WholeText(double{event.x} - HScroll1.value()));
  Label5.SetCaption(WholeText(double{event.y} - VScroll1.value()));
  if (app_.form51.Option1.value() && app_.form51.Check15.value()) ShowNextLine(event);
}

// From the last point drawn to the mouse, over the picture and with its length.
void Form36::ShowNextLine(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  const int count = app_.model.Profile(profile).count;
  const ProfilePointRec& last = app_.model.ProfilePts(std::max(count - 1, 0), profile);
  const ScreenPoint at = Project(app_.formulas.SubView(), last.X, last.Y, last.Z);
  const double x = at.x + HScroll1.value(), y = at.y + VScroll1.value();
  const double dx = event.x - x, dy = event.y - y;
  Label13.SetCaption(RoundedForm(std::sqrt(dx * dx + dy * dy), kLengthDecimals));
  auto& overlay = Picture1.picture.overlay;
  overlay.clear();
  if (count > 0) {
    overlay.push_back({static_cast<float>(x), static_cast<float>(y), event.x, event.y, kNextLineColour});
  }
  Picture1.NotifyChanged();
}

}  // namespace pelorium
