// Drags and picks on the small pictures of "Edit Geometry".
#include "windows/geometry/geometry_drag.h"

#include <utility>

#include "core/chosen_points.h"
#include "geometry/edit_chosen_points.h"
#include "views/draw_views.h"
#include "views/pick_points.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/geometry/view_miniature.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/drag_factor.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_mouse.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr double kSpeed = 0.5;      // units or degrees for each unit dragged, at a factor of 1
constexpr double kSlowerTurn = 10;  // the second turn is slower by this
constexpr Colour kAreaColour = Rgb(250, 250, 250);

// A factor of 1 would round the last digit.
void ScaleBySign(ModelStore& model, const ChosenPoints& chosen, Axis axis, double dragged,
                 const Vec3& pivot) {
  if (dragged != 0) ScaleChosen(model, chosen, axis, DragFactor(dragged), pivot);
}

OverlayShape ShapeOf(const PickArea& area) {
  return {static_cast<float>(area.x - area.halfWidth),
          static_cast<float>(area.y + area.halfHeight),
          static_cast<float>(area.x + area.halfWidth),
          static_cast<float>(area.y - area.halfHeight),
          kAreaColour,
          area.shape == PickShape::Circle ? OverlayShape::Form::Ellipse : OverlayShape::Form::Rectangle};
}

}  // namespace

GeometryDrag::GeometryDrag(App& app, PictureBox& picture, std::function<GeometryMode()> mode)
    : app_(app),
      picture_(picture),
      mode_(std::move(mode)),
      ownWidth_(picture.measures().PixelWidth()),
      ownHeight_(picture.measures().PixelHeight()) {
  picture.onMouseDown = [this](const MouseEvent& event) { Press(event); };
  picture.onMouseMove = [this](const MouseEvent& event) { Move(event); };
  picture.onMouseUp = [this](const MouseEvent&) {
    held_.LetGo();
    ShowPath(false);
  };
  picture.onDoubleClick = [this] {
    if (mode_() != GeometryMode::MoveOrigin) return;
    SetOrigin(app_, {0, 0, 0});
    RefreshViews(app_);
  };
}

void GeometryDrag::FollowView() {
  Picture& area = picture_.picture();
  if (mode_() == GeometryMode::PickPoints) return FollowWholeView(app_, area, ownWidth_);
  if (area.PixelHeight() != ownHeight_) area.Resize(ownWidth_, ownHeight_);
  const double width = area.PixelWidth(), height = area.PixelHeight();
  if (mode_() == GeometryMode::MoveOrigin) {
    const Picture& view = app_.view->form36.Picture1.measures();
    area.SetScale(width * view.ScaleWidth() / view.PixelWidth(),
                  height * view.ScaleHeight() / view.PixelHeight());
  } else {
    area.SetScale(width, height);
  }
}

void GeometryDrag::ShowView(ViewSettings settings) {
  FollowView();
  if (mode_() == GeometryMode::PickPoints) {
    settings.showGrid = settings.showChosenPoints = settings.showAllPoints = false;
    DrawViews(app_.model, settings, picture_.picture(), app_.drawingFaults);
  } else {
    picture_.picture().Clear();
  }
  picture_.NotifyChanged();
}

void GeometryDrag::Press(const MouseEvent& event) {
  FollowView();
  held_.Press(event);
  picture_.overlay().clear();
  if (mode_() == GeometryMode::PickPoints) Pick();
  picture_.NotifyChanged();
}

// While nothing is held, the units follow the view: they are right before the press comes.
void GeometryDrag::Move(const MouseEvent& event) {
  if (!held_.isActive()) {
    FollowView();
    return;
  }
  const PictureDrag::Step step = held_.TakeStep(event);
  Edit(step.across, step.up);
}

void GeometryDrag::Pick() {
  Trapped(app_.faults, picture_.FullName(), [this] {
    const auto view = PickViewAt(app_, held_.lastX(), held_.lastY());
    if (!view) return;
    const SpecialEffects5& window = app_.geometry->specialeffects5;
    PickArea area{PickShape::Rectangle, held_.lastX(), held_.lastY(), window.HScroll2.Shown(),
                  window.HScroll6.Shown()};
    if (window.Option2.value()) {
      area.shape = PickShape::Circle;
      area.halfWidth = area.halfHeight;
    }
    picture_.overlay().push_back(ShapeOf(area));
    PickPoints(app_.model, CurrentPart(app_), PointRangeStart(app_), PointRangeEnd(app_), *view, area,
               !IsRight());
  });
  RefreshViews(app_);
}

// A line from the press to the mouse, for a drag that leaves the points where they are.
void GeometryDrag::ShowPath(bool isShown) {
  auto& overlay = picture_.overlay();
  if (mode_() == GeometryMode::PickPoints || (overlay.empty() && !isShown)) return;
  overlay.clear();
  if (isShown) overlay.push_back(held_.Way(kAreaColour));
  picture_.NotifyChanged();
}

// One step of a drag. It shows in any case; the model changes only when it may.
void GeometryDrag::Edit(double dx, double dy) {
  const GeometryMode mode = mode_();
  if (mode == GeometryMode::PickPoints) return;
  const bool mayEdit = app_.geometry->specialeffects5.Check3.value();
  ShowPath(!mayEdit && mode != GeometryMode::MoveOrigin);
  Trapped(app_.faults, picture_.FullName(), [&] {
    if (mode == GeometryMode::MoveOrigin) MoveOrigin(dx, dy);
    if (mode == GeometryMode::Move && mayEdit) MovePoints(dx, dy);
    if (mode == GeometryMode::Rotate && mayEdit) RotatePoints(dx, dy);
    if (mode == GeometryMode::Scale && mayEdit) ScalePoints(dx, dy);
    SyncFaceCorners(app_);
  });
  if (mayEdit && app_.geometry->specialeffects5.Check4.value()) app_.geometry->revolveprof.Command18.Press();
  RefreshViews(app_);
}

// As far as the mouse would move them over the view.
void GeometryDrag::MovePoints(double dx, double dy) {
  const double step = Speed() * UnitsPerPixel(app_);
  if (!IsRight()) MoveChosen(app_.model, Chosen(app_), Axis::X, step * dx);
  MoveChosen(app_.model, Chosen(app_), IsRight() ? Axis::Z : Axis::Y, -step * dy);
}

void GeometryDrag::RotatePoints(double dx, double dy) {
  using enum Axis;
  const Turn across = Turn::By(Speed() * dx), along = Turn::By(Speed() * dy / kSlowerTurn);
  if (IsRight()) {
    TurnChosen(app_.model, Chosen(app_), {{X, Y, across}, {Y, Z, along}}, Origin(app_));
  } else {
    TurnChosen(app_.model, Chosen(app_), {{X, Z, across}}, Origin(app_));
  }
}

void GeometryDrag::ScalePoints(double dx, double dy) {
  const ChosenPoints chosen = Chosen(app_);
  const Vec3 pivot = Origin(app_);
  ScaleBySign(app_.model, chosen, Axis::X, dx, pivot);
  ScaleBySign(app_.model, chosen, Axis::Y, dy, pivot);
  ScaleBySign(app_.model, chosen, Axis::Z, dy, pivot);
}

void GeometryDrag::MoveOrigin(double dx, double dy) {
  Vec3 origin = Origin(app_);
  if (IsRight()) {
    origin.Z += dy;
  } else {
    origin.X += dx;
    origin.Y += dy;
  }
  SetOrigin(app_, origin);
}

double GeometryDrag::Speed() const { return app_.geometry->specialeffects5.Text3.Number() * kSpeed; }
bool GeometryDrag::IsRight() const { return held_.IsRight(); }

}  // namespace pelorium
