// The mouse on the picture of the model.
#include "windows/view_mouse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "base/numbers.h"
#include "geometry/choose_points.h"
#include "profiles/draw_point.h"
#include "windows/app.h"
#include "windows/follow_counts.h"
#include "windows/form36_view.h"
#include "windows/form51_view_options.h"
#include "windows/form5_precise_edit.h"
#include "windows/formulas_edit_profile.h"
#include "windows/refresh_views.h"
#include "windows/shaded_view.h"
#include "windows/shared_parameters.h"
#include "windows/specialeffects5_edit_geometry.h"

namespace pelorium {

std::int16_t ToPosition(float position) {
  using Limits = std::numeric_limits<std::int16_t>;
  const double rounded = RoundHalfEven(position);
  return static_cast<std::int16_t>(std::clamp<double>(rounded, Limits::min(), Limits::max()));
}

namespace {

constexpr int kLengthDecimals = 2;
constexpr Colour kNextLineColour = Rgb(250, 0, 0);
constexpr Colour kShapeColour = Rgb(250, 250, 250);
constexpr double kPickPixels = 8;      // how near to the mouse a point lies that is meant
constexpr int kMostTesselated = 3850;  // the triangles of one point fewer still fit into the table

std::string WholeText(double value) { return GeneralForm(std::floor(value)); }

bool DrawsProfile(const App& app) { return app.form51.Option1.value() && app.form51.Check8.value(); }

bool IsLeaning(const App& app) { return app.formulas.SubView() == Projection::Oblique; }

PickView ProfileView(const App& app) {
  return {app.formulas.SubView(), static_cast<double>(app.form36.HScroll1.value()),
          static_cast<double>(app.form36.VScroll1.value())};
}

bool MovesProfile(const App& app) {
  return app.form36.Option1.value() && app.form51.Option1.value() && !IsLeaning(app);
}

// Where the mouse stands in the plane of the profile view.
ProfileClick ProfileClickAt(const App& app, const MouseEvent& event) {
  ProfileClick click;
  click.plane = app.formulas.Plane();
  click.across = std::floor(event.x) - app.form36.HScroll1.value();
  click.up = std::floor(event.y) - app.form36.VScroll1.value();
  click.third = app.formulas.HScroll28.Shown();
  click.advances = event.button == MouseButton::Left;
  return click;
}

double CircleRadius(const App& app) { return app.specialeffects5.HScroll6.Shown(); }

// Where the brush works: in the view that shows the Parts. A view that leans counts as the front.
std::optional<PickView> BrushViewAt(const App& app, double x, double y) {
  const Form51& options = app.form51;
  const double panX = app.form36.HScroll1.value(), panY = app.form36.VScroll1.value();
  if (options.Option3.value()) return PickView{Projection::Top, panX, panY};
  if (options.Option4.value()) return PickView{Projection::Oblique, panX, panY};
  if (options.Option1.value()) return PickView{app.formulas.SubView(), panX, panY};
  return PickViewAt(app, x, y);
}

DragAxes BrushAxesOf(Projection projection) {
  return DragAxesOf(projection == Projection::Oblique ? Projection::Front : projection);
}

}  // namespace

std::optional<PickView> PickViewAt(const App& app, double x, double y) {
  const Form51& options = app.form51;
  const double panX = app.form36.HScroll1.value(), panY = app.form36.VScroll1.value();
  if (options.Option5.value()) return PickView{Projection::Top, panX, panY};
  if (options.Option2.value()) return PickView{Projection::Front, panX, panY};
  if (options.Option6.value()) return PickView{Projection::Side, panX, panY};
  if (options.Option16.value()) return NearestOfTri(panX, panY, options.HScroll9.value(), x, y);
  return std::nullopt;
}

template <typename Act>
void ViewMouse::Guarded(Act act) {
  try {
    act();
  } catch (...) {
    DragActive = 0;
    throw;
  }
}

void ViewMouse::Hold(const MouseEvent& event) {
  LastX = ToPosition(event.x);
  LastY = ToPosition(event.y);
}

void ViewMouse::Down(const MouseEvent& event) {
  Guarded([&] {
    const bool isTri = app_.form51.Option16.value();
    pickView_ = PickViewAt(app_, event.x, event.y);
    brushView_ = BrushViewAt(app_, event.x, event.y);
    axes_ = isTri ? DragAxesOf(pickView_->projection) : DragAxes{};
    layer_.reset();
    DragActive = -1;
    Hold(event);
    ShowGreyLevel(event);
    if (app_.form36.Option10.value()) PressPick(event);
    if (!app_.form36.IsArmed()) ShowPicked(event);
    if (app_.form51.Option3.value()) ClickTesselated(event);
    if (app_.form51.Option1.value() && !IsLeaning(app_)) PressProfile(event);
  });
}

void ViewMouse::PressPick(const MouseEvent& event) {
  const bool on = event.button == MouseButton::Left;
  cornerX_ = event.x;
  cornerY_ = event.y;
  if (event.keys.shift) {
    MarkPoints(app_.model, CurrentPart(app_), PointRangeStart(app_), PointRangeEnd(app_), on);
  } else if (pickView_) {
    Pick(event);
    ShowPicked(event);
  }
  RefreshViews(app_);
}

// The circle lies around the mouse; the rectangle reaches from where it was pressed.
PickArea ViewMouse::AreaAt(const MouseEvent& event) const {
  if (app_.specialeffects5.Option3.value()) return RectangleBetween(cornerX_, cornerY_, event.x, event.y);
  const double radius = CircleRadius(app_);
  return {PickShape::Circle, event.x, event.y, radius, radius};
}

void ViewMouse::Pick(const MouseEvent& event) {
  const PickArea area = AreaAt(event);
  PlaceShape(area);
  PickPoints(app_.model, CurrentPart(app_), PointRangeStart(app_), PointRangeEnd(app_), *pickView_, area,
             event.button == MouseButton::Left);
}

// The number of the point that is meant, for the windows that work on single points.
void ViewMouse::ShowPicked(const MouseEvent& event) {
  if (!pickView_) return;
  const Picture& picture = app_.form36.Picture1.picture;
  const double pixels = kPickPixels * std::abs(picture.ScaleWidth()) / picture.PixelWidth();
  const double within = app_.specialeffects5.Option2.value() ? std::max(pixels, CircleRadius(app_)) : pixels;
  const std::optional<int> number = NearestPoint(app_.model, CurrentPart(app_), PointRangeStart(app_),
                                                 PointRangeEnd(app_), *pickView_, event.x, event.y, within);
  if (number) app_.form36.Label16.SetCaption(std::to_string(*number));
}

// Each click adds a point to the mesh that is tesselated later; its Z stays as it was.
void ViewMouse::ClickTesselated(const MouseEvent& event) {
  const int part = CurrentPart(app_), number = app_.TessCount;
  PointRec& point = app_.model.Points(part, number);
  point.X = std::floor(event.x) - app_.form36.HScroll1.value();
  point.Y = std::floor(event.y) - app_.form36.VScroll1.value();
  point.onoff = app_.model.PointMark(part, number) = 1;
  app_.TessCount = number + 1 > kMostTesselated ? 1 : number + 1;
  app_.model.Part(part).maxpoints = Narrow<std::int16_t>(number);
  FollowPoints(app_);
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void ViewMouse::PressProfile(const MouseEvent& event) {
  if (app_.form36.Option1.value()) {
    ChooseLayer(event);
  } else if (DrawsProfile(app_)) {
    DrawPoint(event);
  }
}

void ViewMouse::DrawPoint(const MouseEvent& event) {
  const int layer = DrawProfilePoint(app_.model, CurrentProfile(app_), ProfileClickAt(app_, event));
  app_.form36.Label16.SetCaption(std::to_string(layer));
  app_.form51.ShowProfileCount();
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

// The coordinate that the view does not show becomes the elevation, so that the drag keeps it.
void ViewMouse::ChooseLayer(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  layer_ = NearestLayer(app_.model, profile, ProfileView(app_), event.x, event.y);
  app_.form36.Label16.SetCaption(std::to_string(*layer_));
  app_.formulas.ShowPoint(*layer_);
  ScrollBar& elevation = app_.formulas.HScroll28;
  const double third = ThirdCoordinate(app_.formulas.Plane(), app_.model.ProfilePts(*layer_, profile));
  elevation.SetValue(elevation.Clamped(RoundHalfEven(third)));
}

void ViewMouse::ShowGreyLevel(const MouseEvent& event) {
  const Picture& picture = app_.form36.Picture1.picture;
  if (!picture.backdrop()) return;
  const Pixel pixel = picture.ToPixel(event.x, event.y);
  const int colour = picture.PixelAt(pixel.x, pixel.y);
  if (colour >= 0) app_.form36.ShowGreyLevel(static_cast<Colour>(colour));
}

void ViewMouse::Move(const MouseEvent& event) {
  Guarded([&] {
    const bool isShaded = app_.form51.Option11.value();
    if (isShaded && DragActive != 0) DragShaded(event);
    if (layer_ && DragActive != 0 && MovesProfile(app_)) MoveLayer(event);
    ShowPlace(event);
    if (isShaded) return;
    if (DragActive != 0) {
      Brush(event);
      DragModel(app_, StepTo(event), axes_);
    }
    if (app_.form36.Option10.value()) {
      MovePick(event);
    } else if (app_.form36.Shape5.visible()) {
      ShowOverlay();  // picking was switched off
    }
    if (DragActive != 0) Hold(event);
  });
}

void ViewMouse::DragShaded(const MouseEvent& event) {
  app_.shadedView->DragPose(event, double{event.x} - LastX, double{event.y} - LastY);
  Hold(event);
  app_.shadedView->DrawShaded();
}

DragStep ViewMouse::StepTo(const MouseEvent& event) const {
  const double across = double{event.x} - LastX, up = double{event.y} - LastY;
  return {across, up, up, event.button == MouseButton::Right, event.keys.shift};
}

void ViewMouse::MoveLayer(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  MoveProfilePoint(app_.model, profile, *layer_, ProfileClickAt(app_, event),
                   {app_.form51.Check4.value(), app_.form51.Check5.value()});
  if (app_.form5.Check2.value()) {
    const int partner = MirrorPartner(*layer_, app_.form5.HScroll5.value(), 0, kMaxLayer);
    if (partner != kNoPartner) {
      PlaceMirrored(app_.model.ProfilePts(partner, profile), app_.model.ProfilePts(*layer_, profile),
                    app_.form5.FlipAxis(), Origin(app_));
    }
  }
  app_.formulas.ShowPoint(*layer_);
  RefreshViews(app_);
}

void ViewMouse::ShowPlace(const MouseEvent& event) {
  Form36& view = app_.form36;
  view.Label4.SetCaption(WholeText(double{event.x} - view.HScroll1.value()));
  view.Label5.SetCaption(WholeText(double{event.y} - view.VScroll1.value()));
  if (app_.form51.Option1.value()) ShowNextLine(event);
}

// From the last point drawn to the mouse: its length always, the line over the picture while it is wanted.
// Points that are moved have no next one.
void ViewMouse::ShowNextLine(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  const int count = app_.model.Profile(profile).count;
  const ProfilePointRec& last = app_.model.ProfilePts(std::max(count - 1, 0), profile);
  const PickView view = ProfileView(app_);
  const ScreenPoint at = Project(view.projection, last.X, last.Y, last.Z);
  const double x = at.x + view.panX, y = at.y + view.panY;
  const double dx = event.x - x, dy = event.y - y;
  app_.form36.Label13.SetCaption(RoundedForm(std::sqrt(dx * dx + dy * dy), kLengthDecimals));
  nextLine_.reset();
  if (count > 0 && app_.form51.Check15.value() && !MovesProfile(app_)) {
    nextLine_ = {static_cast<float>(x), static_cast<float>(y), event.x, event.y, kNextLineColour};
  }
  ShowOverlay();
}

void ViewMouse::Brush(const MouseEvent& event) {
  if (!onBrush || !brushView_) return;
  const DragAxes plane = BrushAxesOf(brushView_->projection);
  onBrush({plane.across, plane.up, event.x - brushView_->panX, event.y - brushView_->panY, event});
}

// The circle follows the mouse; the rectangle grows with it while a button is held, and picks as it grows.
void ViewMouse::MovePick(const MouseEvent& event) {
  if (app_.specialeffects5.Option3.value()) {
    if (DragActive == 0 || !pickView_ || event.keys.shift) return;
    Pick(event);
    RefreshViews(app_);
  } else if (PickViewAt(app_, event.x, event.y)) {
    PlaceShape(AreaAt(event));
    ShowOverlay();
  }
}

void ViewMouse::PlaceShape(const PickArea& area) {
  Shape& shape = app_.form36.Shape5;
  shape.form = area.shape == PickShape::Circle ? Shape::Form::Circle : Shape::Form::Rectangle;
  shape.left = area.x - area.halfWidth;
  shape.top = area.y + area.halfHeight;
  shape.width = 2 * area.halfWidth;
  shape.height = 2 * area.halfHeight;
  shape.SetVisible(true);
}

void ViewMouse::Refreshed() {
  nextLine_.reset();
  if (!PickViewAt(app_, 0, 0)) app_.form36.Shape5.SetVisible(false);
  ShowOverlay();
}

void ViewMouse::ShowOverlay() {
  Form36& view = app_.form36;
  Shape& shape = view.Shape5;
  if (!view.Option10.value() || !app_.form51.Check17.value()) shape.SetVisible(false);
  auto& overlay = view.Picture1.picture.overlay;
  overlay.clear();
  if (nextLine_) overlay.push_back(*nextLine_);
  if (shape.visible()) {
    overlay.push_back(
        {static_cast<float>(shape.left), static_cast<float>(shape.top),
         static_cast<float>(shape.left + shape.width), static_cast<float>(shape.top - shape.height),
         kShapeColour,
         shape.form == Shape::Form::Circle ? OverlayShape::Form::Ellipse : OverlayShape::Form::Rectangle});
  }
  view.Picture1.NotifyChanged();
}

}  // namespace pelorium
