// Making "Pts/ layer" agree with the Part.
#include "windows/view/follow_sections.h"

#include <algorithm>

#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

void FollowSections(App& app) {
  ScrollBar& pointsPerLayer = app.view->form5.HScroll5;
  const int ring = std::max(pointsPerLayer.min(), ReadModel(app).Part(CurrentPart(app)).Sections + 1);
  pointsPerLayer.SetValueWidening(ring);
}

void FollowSectionsWidely(App& app) {
  ScrollBar& pointsPerLayer = app.view->form5.HScroll5;
  pointsPerLayer.SetMax(std::max(pointsPerLayer.max(), kMostPointsPerLayer));
  FollowSections(app);
}

void FollowGenerated(App& app) {
  FollowCounts(app);
  FollowSectionsWidely(app);
}

}  // namespace pelorium
