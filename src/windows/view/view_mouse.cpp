// The mouse on the picture of the model.
#include "windows/view/view_mouse.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "geometry/choose_points.h"
#include "profiles/draw_point.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/shell/readers.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shaded_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kLengthDecimals = 2;
constexpr Colour kNextLineColour = Rgb(250, 0, 0);
constexpr Colour kShapeColour = Rgb(250, 250, 250);
constexpr double kPickPixels = 8;  // how near to the mouse a point lies that is meant

std::string WholeText(double value) { return GeneralForm(std::floor(value)); }

bool DrawsProfile(const App& app) { return IsProfileViewChosen(app) && app.view->form51.Check8.value(); }

bool IsLeaning(const App& app) { return SubView(app) == Projection::Oblique; }

PickView ProfileView(const App& app) { return {SubView(app), ViewPan(app).x, ViewPan(app).y}; }

bool MovesProfile(const App& app) {
  return ArmedTool(app) == Tool::MovePoint && IsProfileViewChosen(app) && !IsLeaning(app);
}

// Where the mouse stands in the plane of the profile view.
ProfileClick ProfileClickAt(const App& app, const MouseEvent& event) {
  ProfileClick click;
  click.plane = PlaneOf(SubView(app));
  click.across = std::floor(event.x) - ViewPan(app).x;
  click.up = std::floor(event.y) - ViewPan(app).y;
  click.third = Elevation(app);
  click.advances = event.button == MouseButton::Left;
  return click;
}

// Where the brush works: in the view that shows the Parts.
std::optional<PickView> BrushViewAt(const App& app, double x, double y) {
  const auto [panX, panY] = ViewPan(app);
  switch (ChosenView(app)) {
    case ViewMode::Tesselate:
      return PickView{Projection::Top, panX, panY};
    case ViewMode::View3D:
      return PickView{Projection::Oblique, panX, panY};
    case ViewMode::Profile:
      return PickView{SubView(app), panX, panY};
    default:
      return PickViewAt(app, x, y);
  }
}

// A view that leans counts as the front.
DragAxes BrushAxesOf(Projection projection) {
  return DragAxesOf(projection == Projection::Oblique ? Projection::Front : projection);
}

}  // namespace

std::optional<PickView> PickViewAt(const App& app, double x, double y) {
  const auto [panX, panY] = ViewPan(app);
  switch (ChosenView(app)) {
    case ViewMode::Top:
      return PickView{Projection::Top, panX, panY};
    case ViewMode::Front:
      return PickView{Projection::Front, panX, panY};
    case ViewMode::Side:
      return PickView{Projection::Side, panX, panY};
    case ViewMode::Tri:
      return NearestOfTri(panX, panY, TriSeparation(app), x, y);
    default:
      return std::nullopt;
  }
}

template <typename Act>
void ViewMouse::Guarded(Act act) {
  try {
    act();
  } catch (...) {
    drag_.LetGo();
    throw;
  }
}

void ViewMouse::Down(const MouseEvent& event) {
  Guarded([&] {
    const bool isTri = ChosenView(app_) == ViewMode::Tri;
    pickView_ = PickViewAt(app_, event.x, event.y);
    brushView_ = BrushViewAt(app_, event.x, event.y);
    axes_ = isTri ? DragAxesOf(pickView_->projection) : DragAxes{};
    layer_.reset();
    drag_.Press(event);
    ShowGreyLevel(event);
    if (ArmedTool(app_) == Tool::PickPoints) PressPick(event);
    if (ArmedTool(app_) == Tool::None) ShowPicked(event);
    if (ChosenView(app_) == ViewMode::Tesselate)
      app_.links.addMeshPoint(std::floor(event.x) - ViewPan(app_).x, std::floor(event.y) - ViewPan(app_).y);
    if (IsProfileViewChosen(app_) && !IsLeaning(app_)) PressProfile(event);
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
  const PickShapeSettings shape = PickSettings(app_);
  if (!shape.isCircle) return RectangleBetween(cornerX_, cornerY_, event.x, event.y);
  return {PickShape::Circle, event.x, event.y, shape.radius, shape.radius};
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
  const PickShapeSettings shape = PickSettings(app_);
  const double pixels = kPickPixels * UnitsPerPixel(app_);
  const double within = shape.isCircle ? std::max(pixels, shape.radius) : pixels;
  const std::optional<int> number = NearestPoint(app_.model, CurrentPart(app_), PointRangeStart(app_),
                                                 PointRangeEnd(app_), *pickView_, event.x, event.y, within);
  if (number) app_.view->form36.Label16.SetCaption(std::to_string(*number));
}

void ViewMouse::PressProfile(const MouseEvent& event) {
  if (ArmedTool(app_) == Tool::MovePoint) {
    ChooseLayer(event);
  } else if (DrawsProfile(app_)) {
    DrawPoint(event);
  }
}

void ViewMouse::DrawPoint(const MouseEvent& event) {
  const int layer = DrawProfilePoint(app_.model, CurrentProfile(app_), ProfileClickAt(app_, event));
  app_.view->form36.Label16.SetCaption(std::to_string(layer));
  app_.view->form51.ShowProfileCount();
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void ViewMouse::ChooseLayer(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  layer_ = NearestLayer(app_.model, profile, ProfileView(app_), event.x, event.y);
  app_.view->form36.Label16.SetCaption(std::to_string(*layer_));
  TellLayerChosen(app_, *layer_);
}

void ViewMouse::ShowGreyLevel(const MouseEvent& event) {
  const Picture& picture = app_.view->form36.Picture1.picture();
  if (!picture.backdrop()) return;
  const Pixel pixel = picture.ToPixel(event.x, event.y);
  const int colour = picture.PixelAt(pixel.x, pixel.y);
  if (colour >= 0) app_.view->form36.ShowGreyLevel(static_cast<Colour>(colour));
}

void ViewMouse::Move(const MouseEvent& event) {
  Guarded([&] {
    const bool isShaded = IsShadedChosen(app_);
    if (isShaded && drag_.isActive()) DragShaded(event);
    if (layer_ && drag_.isActive() && MovesProfile(app_)) MoveLayer(event);
    ShowPlace(event);
    if (isShaded) return;
    if (drag_.isActive()) {
      Brush(event);
      DragModel(app_, StepTo(event), axes_);
    }
    if (ArmedTool(app_) == Tool::PickPoints) {
      MovePick(event);
    } else if (app_.view->form36.Shape5.visible()) {
      ShowOverlay();  // picking was switched off
    }
    if (drag_.isActive()) drag_.Hold(event);
  });
}

void ViewMouse::DragShaded(const MouseEvent& event) {
  app_.view->shadedView->DragPose(event, drag_.TakeStep(event));
  app_.view->shadedView->DrawShaded();
}

DragStep ViewMouse::StepTo(const MouseEvent& event) const {
  const auto [across, up] = drag_.StepTo(event);
  return {across, up, up, event.button == MouseButton::Right, event.keys.shift};
}

void ViewMouse::MoveLayer(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  MoveProfilePoint(app_.model, profile, *layer_, ProfileClickAt(app_, event), EnabledMoves(app_));
  if (MirrorsMoves(app_)) {
    const int partner = MirrorPartner(*layer_, PointsPerLayer(app_), 0, kMaxLayer);
    if (partner != kNoPartner) {
      PlaceMirrored(app_.model.ProfilePts(partner, profile), ReadModel(app_).ProfilePts(*layer_, profile),
                    FlipAxis(app_), Origin(app_));
    }
  }
  TellLayerShown(app_, *layer_);
  RefreshViews(app_);
}

void ViewMouse::ShowPlace(const MouseEvent& event) {
  Form36& view = app_.view->form36;
  view.Label4.SetCaption(WholeText(event.x - ViewPan(app_).x));
  view.Label5.SetCaption(WholeText(event.y - ViewPan(app_).y));
  if (IsProfileViewChosen(app_)) ShowNextLine(event);
}

// From the last point drawn to the mouse: its length always, the line over the picture while it is wanted.
// Points that are moved have no next one.
void ViewMouse::ShowNextLine(const MouseEvent& event) {
  const int profile = CurrentProfile(app_);
  const int count = ReadModel(app_).Profile(profile).count;
  const ProfilePointRec& last = ReadModel(app_).ProfilePts(std::max(count - 1, 0), profile);
  const PickView view = ProfileView(app_);
  const ScreenPoint at = Project(view.projection, last.X, last.Y, last.Z);
  const double x = at.x + view.panX, y = at.y + view.panY;
  const double dx = event.x - x, dy = event.y - y;
  app_.view->form36.Label13.SetCaption(RoundedForm(std::sqrt(dx * dx + dy * dy), kLengthDecimals));
  nextLine_.reset();
  if (count > 0 && app_.view->form51.Check15.value() && !MovesProfile(app_)) {
    nextLine_ = {static_cast<float>(x), static_cast<float>(y), event.x, event.y, kNextLineColour};
  }
  ShowOverlay();
}

void ViewMouse::Brush(const MouseEvent& event) {
  if (!onBrush || !brushView_) return;
  onBrush({BrushAxesOf(brushView_->projection), event.x - brushView_->panX, event.y - brushView_->panY,
           StepTo(event)});
}

// The circle follows the mouse; the rectangle grows with it while a button is held, and picks as it grows.
void ViewMouse::MovePick(const MouseEvent& event) {
  if (!PickSettings(app_).isCircle) {
    if (!drag_.isActive() || !pickView_ || event.keys.shift) return;
    Pick(event);
    RefreshViews(app_);
  } else if (PickViewAt(app_, event.x, event.y)) {
    PlaceShape(AreaAt(event));
    ShowOverlay();
  }
}

void ViewMouse::PlaceShape(const PickArea& area) {
  Shape& shape = app_.view->form36.Shape5;
  shape.form = area.shape == PickShape::Circle ? Shape::Form::Circle : Shape::Form::Rectangle;
  shape.left = area.x - area.halfWidth;
  shape.top = area.y + area.halfHeight;
  shape.width = 2 * area.halfWidth;
  shape.height = 2 * area.halfHeight;
  shape.SetVisible(true);
}

void ViewMouse::Refreshed() {
  nextLine_.reset();
  if (!PickViewAt(app_, 0, 0)) app_.view->form36.Shape5.SetVisible(false);
  ShowOverlay();
}

void ViewMouse::ShowPreview(std::vector<OverlayShape> lines) {
  preview_ = std::move(lines);
  previewEvent_ = app_.eventsEnded;
  ShowOverlay();
}

void ViewMouse::DropOldPreview() {
  if (preview_.empty() || previewEvent_ == app_.eventsEnded) return;
  preview_.clear();
  ShowOverlay();
}

void ViewMouse::ShowOverlay() {
  Form36& view = app_.view->form36;
  Shape& shape = view.Shape5;
  if (ArmedTool(app_) != Tool::PickPoints || !app_.view->form51.Check17.value()) shape.SetVisible(false);
  auto& overlay = view.Picture1.overlay();
  overlay = preview_;
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
