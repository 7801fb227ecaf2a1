// The wheel over the view.
#include "windows/view/view_zoom.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "views/fit_view.h"
#include "views/zoom.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/refresh_views.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr double kWheelStep = 0.9;        // of the units across, a step
constexpr double kShadedWheelStep = 1.1;  // of "Zoom"
constexpr double kShadedUnits = 10000;    // of "Zoom" for a scale of 1
constexpr double kShadedShare = 0.9;      // of the shaded picture, which reaches from -1 to 1

void SetPans(App& app, double x, double y) {
  Form36& view = app.view->form36;
  view.HScroll1.SetValue(view.HScroll1.Clamped(RoundHalfEven(x)));
  view.VScroll1.SetValue(view.VScroll1.Clamped(RoundHalfEven(y)));
  RefreshViews(app);  // the pans may both stand there already
}

void TurnShadedWheel(App& app, int steps) {
  ScrollBar& zoom = app.view->form51.HScroll13;
  const double wanted = RoundHalfEven(zoom.value() * std::pow(kShadedWheelStep, steps));
  const double least = zoom.value() + (steps > 0 ? 1 : -1);
  zoom.SetValue(zoom.Clamped(steps > 0 ? std::max(wanted, least) : std::min(wanted, least)));
}

// As many of the steps as the limits of the view allow; what they multiply the units by.
double ZoomBySteps(Picture& picture, int steps) {
  const double before = picture.ScaleWidth(), step = steps > 0 ? kWheelStep : 1 / kWheelStep;
  for (int i = 0; i < std::abs(steps) && Zoom(picture, step); ++i) {
  }
  return picture.ScaleWidth() / before;
}

}  // namespace

void TurnWheelOverView(App& app, const WheelEvent& wheel) {
  if (wheel.keys.ctrl || wheel.steps == 0) return;
  if (IsShadedChosen(app)) return TurnShadedWheel(app, wheel.steps);
  const double grown = ZoomBySteps(app.view->form36.Picture1.picture(), wheel.steps) - 1;
  const ViewPans pan = ViewPan(app);
  SetPans(app, pan.x + wheel.x * grown, pan.y + wheel.y * grown);
}

void FitModel(App& app) {
  if (IsShadedChosen(app)) {
    const ShadedPose& pose = app.shadedPose;
    const double moved = std::hypot(pose.ShadeMoveX, pose.ShadeMoveY, pose.ShadeMoveZ);
    const double reach = ReachOfParts(app.model) + moved;
    ScrollBar& zoom = app.view->form51.HScroll13;
    if (reach > 0) zoom.SetValue(zoom.Clamped(RoundHalfEven(kShadedUnits * kShadedShare / reach)));
    return;
  }
  Form36& view = app.view->form36;
  const auto extent = ExtentInView(app.model, GatherViewSettings(app));
  if (!extent) return view.Home.Press();
  Picture& picture = view.Picture1.picture();
  const FittedView fitted = FitInto(*extent, picture.PixelWidth(), picture.PixelHeight());
  if (!Zoom(picture, fitted.unitsPerPixel * picture.PixelWidth() / picture.ScaleWidth())) return;
  SetPans(app, fitted.panX, fitted.panY);
}

void ZoomInGently(App& app) {
  if (Zoom(app.view->form36.Picture1.picture(), 1 / kZoomOutGently)) RefreshViews(app);
}

}  // namespace pelorium
