// Gathers the settings of the views from the controls and draws.
#include "windows/view/refresh_views.h"

#include <string>

#include "core/part_operations.h"
#include "views/draw_views.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/shell/readers.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// What is not pixels at once; the pixels when the event ends.
void Refresh(App& app) {
  Trapped(app.faults, "RefreshViews", [&app] {
    Form36& view = app.view->form36;
    view.ShowTotals();
    view.mouse.DropOldPreview();
    if (IsShadedChosen(app)) return view.Command16.Press();
    const ViewSettings settings = GatherViewSettings(app);
    if (settings.mode != ViewMode::None) view.Label54.SetCaption(std::string(ViewCaption(settings)));
    view.mouse.Refreshed();
    view.Redraw(Form36::Content::Wire);
  });
}

void Sync(App& app) {
  const int part = CurrentPart(app);
  if (CornersFollow(app)) SyncFaceCorners(app.model, part);
  app.view->form51.Label3.SetCaption(CountCaption(app.model, part));
}

}  // namespace

ViewSettings GatherViewSettings(const App& app) {
  const Form51& options = app.view->form51;
  ViewSettings s;
  s.mode = ChosenView(app);
  s.profileProjection = SubView(app);
  s.panX = ViewPan(app).x;
  s.panY = ViewPan(app).y;
  s.triSeparation = TriSeparation(app);
  s.gridSpacing = options.HScroll8.value();
  s.currentPart = CurrentPart(app);
  s.currentProfile = CurrentProfile(app);
  s.firstChosenPoint = PointRangeStart(app);
  s.lastChosenPoint = PointRangeEnd(app);
  s.chosenPoint = ChosenPoint(app);
  s.chosenFace = ChosenFace(app);
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

void PaintViews(App& app, Picture& picture) {
  Trapped(app.drawingFaults, "RefreshViews", [&] {
    const ViewSettings settings = GatherViewSettings(app);
    DrawViews(app.model, settings, picture, app.drawingFaults);
    for (ToolWindow* window : app.toolWindows()) window->ViewsRefreshed(settings);
  });
}

void LinkViews(App& app) {
  app.links.refreshViews = [&app] { Refresh(app); };
  app.links.markStale = [&app] {
    app.view->form36.Redraw(IsShadedChosen(app) ? Form36::Content::Shaded : Form36::Content::Wire);
  };
  app.links.drawNow = [&app] { app.view->form36.Picture1.DrawStale(); };
  app.links.syncFaceCorners = [&app] { Sync(app); };
}

}  // namespace pelorium
