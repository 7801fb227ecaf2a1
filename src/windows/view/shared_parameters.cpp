// Where the shared parameters are kept.
#include "windows/view/shared_parameters.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {

int CurrentPart(const App& app) { return app.view->form51.HScroll4.value(); }
int CurrentProfile(const App& app) { return app.view->form51.HScroll3.value(); }
int PointRangeStart(const App& app) { return app.view->form5.HScroll20.value(); }
int PointRangeEnd(const App& app) { return app.view->form5.HScroll25.value(); }
int FaceRangeStart(const App& app) { return app.view->form51.HScroll7.value(); }
int FaceRangeEnd(const App& app) { return app.view->form51.HScroll5.value(); }

Vec3 Origin(const App& app) {
  const Form5& edit = app.view->form5;
  return {edit.Text5.Number(), edit.Text9.Number(), edit.Text3.Number()};
}

void SetOrigin(App& app, const Vec3& origin) {
  Form5& edit = app.view->form5;
  edit.Text5.SetText(GeneralForm(origin.X));
  edit.Text9.SetText(GeneralForm(origin.Y));
  edit.Text3.SetText(GeneralForm(origin.Z));
}

ChosenPoints Chosen(const App& app) { return {CurrentPart(app), PointRangeStart(app), PointRangeEnd(app)}; }
int PointsPerLayer(const App& app) { return app.view->form5.HScroll5.value(); }
double MoveAmount(const App& app) { return app.view->form5.HScroll10.Number(); }
bool MirrorsMoves(const App& app) { return app.view->form5.Check2.value(); }
Axis FlipAxis(const App& app) { return app.view->form5.FlipAxis(); }

ViewMode ChosenView(const App& app) {
  const Form51& options = app.view->form51;
  const std::array<std::pair<const OptionButton*, ViewMode>, 7> modes = {{
      {&options.Option1, ViewMode::Profile},
      {&options.Option4, ViewMode::View3D},
      {&options.Option5, ViewMode::Top},
      {&options.Option3, ViewMode::Tesselate},
      {&options.Option2, ViewMode::Front},
      {&options.Option6, ViewMode::Side},
      {&options.Option16, ViewMode::Tri},
  }};
  for (const auto& [option, mode] : modes) {
    if (option->value()) return mode;
  }
  return ViewMode::None;
}

bool IsShadedChosen(const App& app) { return app.view->form51.Option11.value(); }
bool IsProfileViewChosen(const App& app) { return app.view->form51.Option1.value(); }

void LeaveProfileView(App& app) {
  if (IsProfileViewChosen(app)) app.view->form51.Option4.SetValue(true);
}

ViewPans ViewPan(const App& app) {
  const Form36& view = app.view->form36;
  return {static_cast<double>(view.HScroll1.value()), static_cast<double>(view.VScroll1.value())};
}

double TriSeparation(const App& app) { return app.view->form51.HScroll9.value(); }

double UnitsPerPixel(const App& app) {
  const Picture& view = app.view->form36.Picture1.measures();
  return std::abs(view.ScaleWidth()) / view.PixelWidth();
}

Tool ArmedTool(const App& app) {
  const Form36& view = app.view->form36;
  const std::array<std::pair<const OptionButton*, Tool>, 6> tools = {{
      {&view.Option7, Tool::Move},
      {&view.Option8, Tool::Rotate},
      {&view.Option9, Tool::Scale},
      {&view.Option10, Tool::PickPoints},
      {&view.Option11, Tool::MoveOrigin},
      {&view.Option1, Tool::MovePoint},
  }};
  for (const auto& [option, tool] : tools) {
    if (option->value()) return tool;
  }
  return Tool::None;
}

MovedAxes EnabledMoves(const App& app) {
  return {app.view->form51.Check4.value(), app.view->form51.Check5.value()};
}

ProfilePlane PlaneOf(Projection projection) {
  switch (projection) {
    case Projection::Top:
      return ProfilePlane::XY;
    case Projection::Side:
      return ProfilePlane::ZY;
    default:
      return ProfilePlane::XZ;
  }
}

bool CornersFollow(const App& app) { return !app.view->form51.Check6.value(); }

}  // namespace pelorium
