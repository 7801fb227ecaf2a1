// Making the range controls agree.
#include "windows/follow_counts.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "core/part_operations.h"
#include "windows/app.h"
#include "windows/editbyface_face_info.h"
#include "windows/form51_view_options.h"
#include "windows/form5_precise_edit.h"
#include "windows/freeface_free_faces.h"
#include "windows/shared_parameters.h"
#include "windows/specialeffects5_edit_geometry.h"

namespace pelorium {

namespace {

constexpr int kMostPointsPerLayer = 120;

// A value above the new limit goes to `fallback` in one step, before the limit can pull it.
void FollowMax(ScrollBar& bar, int max, int fallback) {
  if (bar.value() > max) bar.SetValue(fallback);
  bar.SetMax(max);
}

}  // namespace

void FollowFaces(App& app) {
  const HoldAutomaticActions hold(app);
  const PartHeader& part = app.model.Part(CurrentPart(app));
  const int faces = std::max<int>(0, part.maxfaces);  // a count may stand at -1
  app.form51.HScroll7.SetMax(std::max(1, faces));
  app.form51.HScroll5.SetMax(faces);
  app.form51.HScroll5.SetValue(faces);
  app.editbyface.FollowCounts(part.maxpoints, faces);
  app.specialeffects5.FollowFaceRange();
  app.freeface.ShowFaces();
}

void FollowPoints(App& app) {
  const int points = app.model.Part(CurrentPart(app)).maxpoints;
  app.form5.HScroll25.SetMax(points);
  app.form5.HScroll25.SetValue(points);
  FollowMax(app.form5.HScroll20, std::max(1, points), 1);
}

void FollowCounts(App& app) {
  const HoldAutomaticActions hold(app);
  FollowFaces(app);
  app.form51.HScroll7.SetValue(1);
  FollowPoints(app);
  app.form5.HScroll20.SetValue(1);
  app.form51.Label3.SetCaption(CountCaption(app.model, CurrentPart(app)));
}

void FollowSections(App& app) {
  ScrollBar& pointsPerLayer = app.form5.HScroll5;
  const int ring = std::max(pointsPerLayer.min(), app.model.Part(CurrentPart(app)).Sections + 1);
  pointsPerLayer.SetValueWidening(ring);
}

void FollowSectionsWidely(App& app) {
  ScrollBar& pointsPerLayer = app.form5.HScroll5;
  pointsPerLayer.SetMax(std::max(pointsPerLayer.max(), kMostPointsPerLayer));
  FollowSections(app);
}

void FollowGenerated(App& app) {
  FollowCounts(app);
  FollowSectionsWidely(app);
}

}  // namespace pelorium
