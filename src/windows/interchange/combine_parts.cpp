// One Part of both.
#include "windows/interchange/combine_parts.h"

#include <string>

#include "core/part_operations.h"
#include "geometry/choose_points.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

ScratchPlaces Places(const App& app) { return ScratchPlacesFor(app.applicationPath, "\\parts1\\temp.obj"); }

}  // namespace

void CombineIntoCurrent(App& app, OtherParts others) {
  const int part = CurrentPart(app);
  CombineParts(app.model, part, others, Places(app));
  FollowCounts(app);
  const PartHeader& header = ReadModel(app).Part(part);
  app.view->form5.Label1.SetCaption("faces " + std::to_string(header.maxfaces) + " points " +
                                    std::to_string(header.maxpoints));
  MovePartTo(app.model, part, Origin(app));
  MarkPoints(app.model, part, 1, kMaxPoints, true);
}

void CollapseIntoCurrent(App& app) {
  CombineParts(app.model, CurrentPart(app), OtherParts::AreErased, Places(app));
  app.model.Profile(CurrentProfile(app)).count = 0;
  app.view->form51.ShowProfileCount();
  FollowCounts(app);
  LeaveProfileView(app);
}

}  // namespace pelorium
