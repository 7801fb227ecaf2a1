// Gathers the settings of the views from the controls and draws.
#include "windows/refresh_views.h"

#include <array>
#include <string>
#include <utility>

#include "core/part_operations.h"
#include "views/draw_views.h"
#include "windows/app.h"
#include "windows/editbyface_face_info.h"
#include "windows/form36_view.h"
#include "windows/form51_view_options.h"
#include "windows/formulas_edit_profile.h"
#include "windows/shaded_view.h"
#include "windows/shared_parameters.h"
#include "windows/specialeffects5_edit_geometry.h"

namespace pelorium {

namespace {

ViewMode ChosenMode(const Form51& options) {
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

}  // namespace

ViewSettings GatherViewSettings(const App& app) {
  const Form51& options = app.form51;
  ViewSettings s;
  s.mode = ChosenMode(options);
  s.profileProjection = app.formulas.SubView();
  s.panX = app.form36.HScroll1.value();
  s.panY = app.form36.VScroll1.value();
  s.triSeparation = options.HScroll9.value();
  s.gridSpacing = options.HScroll8.value();
  s.currentPart = CurrentPart(app);
  s.currentProfile = CurrentProfile(app);
  s.firstChosenPoint = PointRangeStart(app);
  s.lastChosenPoint = PointRangeEnd(app);
  s.chosenPoint = app.editbyface.VScroll1.value();
  s.chosenFace = app.editbyface.VScroll2.value();
  s.origin = Origin(app);
  s.showGrid = options.Check1.value();
  s.showWire = options.Check7.value();
  s.showChosenFace = options.Check3.value();
  s.showAllPoints = options.Check9.value();
  s.showChosenPoints = options.Check10.value();
  s.showProfile = options.Check14.value();
  s.showOtherProfiles = options.Check16.value();
  s.showPartsInProfileView = options.Check12.value();
  s.showOrigin = options.Check30.value();
  return s;
}

void RefreshViews(App& app) {
  Trapped(app.faults, "RefreshViews", [&app] {
    Form36& view = app.form36;
    view.ShowTotals();
    if (app.form51.Option11.value()) return view.Command16.Press();
    const ViewSettings settings = GatherViewSettings(app);
    if (settings.mode != ViewMode::None) view.Label54.SetCaption(std::string(ViewCaption(settings)));
    view.mouse.Refreshed();
    DrawViews(app.model, settings, view.Picture1.picture, app.faults);
    app.specialeffects5.ShowView(settings);
  });
}

void SyncFaceCorners(App& app) {
  const int part = CurrentPart(app);
  if (!app.form51.Check6.value()) SyncFaceCorners(app.model, part);
  app.form51.Label3.SetCaption(CountCaption(app.model, part));
}

}  // namespace pelorium
