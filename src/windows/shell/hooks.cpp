// The hooks and their orders.
#include "windows/shell/hooks.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

using Names = std::vector<std::string_view>;

// Where the order of windows makes a difference, the first of them by name.
const Names kLoadOrder = {"Form5", "Form14", "Form31", "Form36", "Form51"};
const Names kPartOrder = {"Form5", "specialeffects5"};
const Names kProfileOrder = {"Formulas", "Formulas2frm", "Formulas3frm", "Form55", "revolveprof"};
const Names kCountsOrder = {"Form51", "editbyface", "specialeffects5", "Form5"};
const Names kAnyOrder = {};

// act(window) for those of `first`, then for the rest.
template <typename Act>
void ForEach(App& app, const Names& first, Act act) {
  for (const std::string_view name : first) {
    for (ToolWindow* window : app.toolWindows()) {
      if (window->name() == name) act(*window);
    }
  }
  for (ToolWindow* window : app.toolWindows()) {
    if (std::find(first.begin(), first.end(), window->name()) == first.end()) act(*window);
  }
}

void ChangeCounts(App& app, Counts which) {
  const HoldAutomaticActions hold(app);
  ForEach(app, kCountsOrder, [which](ToolWindow& window) { window.CountsChanged(which); });
}

}  // namespace

void LoadWindows(App& app) {
  ForEach(app, kLoadOrder, [](ToolWindow& window) { window.Load(); });
}

void TellPartChosen(App& app) {
  ForEach(app, kPartOrder, [](ToolWindow& window) { window.PartChosen(); });
}

void TellProfileChosen(App& app) {
  ForEach(app, kProfileOrder, [](ToolWindow& window) { window.ProfileChosen(); });
}

void FollowCounts(App& app) {
  ChangeCounts(app, Counts::All);
  ForEach(app, kAnyOrder, [](ToolWindow& window) { window.CountsFollowed(); });
}

void FollowFaces(App& app) { ChangeCounts(app, Counts::Faces); }
void FollowPoints(App& app) { ChangeCounts(app, Counts::Points); }

void TellCountsRestored(App& app) {
  ForEach(app, kCountsOrder, [&app](ToolWindow& window) {
    Trapped(app.faults, window.name(), [&window] { window.CountsRestored(); });
  });
}

void TellRecordsRestored(App& app) {
  ForEach(app, kCountsOrder, [&app](ToolWindow& window) {
    Trapped(app.faults, window.name(), [&window] { window.RecordsRestored(); });
  });
}

void TellFaceRangeChosen(App& app) {
  ForEach(app, kAnyOrder, [](ToolWindow& window) { window.FaceRangeChosen(); });
}

void TellViewOptionChosen(App& app) {
  ForEach(app, kAnyOrder, [](ToolWindow& window) { window.ViewOptionChosen(); });
}

void TellLayerShown(App& app, int layer) {
  ForEach(app, kAnyOrder, [layer](ToolWindow& window) { window.LayerShown(layer); });
}

void TellLayerChosen(App& app, int layer) {
  ForEach(app, kAnyOrder, [layer](ToolWindow& window) { window.LayerChosen(layer); });
}

void RefreshViews(App& app) { app.links.refreshViews(); }
void DrawNow(App& app) { app.links.drawNow(); }
void SyncFaceCorners(App& app) { app.links.syncFaceCorners(); }

}  // namespace pelorium
