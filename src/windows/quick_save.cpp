// The quick save.
#include "windows/quick_save.h"

#include "core/project_file.h"
#include "windows/app.h"
#include "windows/file_names.h"
#include "windows/follow_counts.h"
#include "windows/form51_view_options.h"
#include "windows/refresh_views.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shared_parameters.h"

namespace pelorium {

namespace {

constexpr std::int16_t kFewestSections = 4;

constexpr const char* kQuickSaveFile = "qsave.txt";

// The bar's handler writes the sections into the Part too; the Part's own, just read, go back afterwards.
void FollowProfileSections(App& app) {
  const HoldAutomaticActions hold(app);
  ProfileHeader& profile = app.model.Profile(CurrentProfile(app));
  if (profile.sectionCount < kFewestSections) profile.sectionCount = kFewestSections;
  PartHeader& part = app.model.Part(CurrentPart(app));
  const std::int16_t sectionsOfPart = part.Sections;
  const std::int16_t sectionsOfProfile = profile.sectionCount;
  app.revolveprof.HScroll10.SetValue(app.revolveprof.HScroll10.Clamped(sectionsOfProfile));
  profile.sectionCount = sectionsOfProfile;
  part.Sections = sectionsOfPart;
}

}  // namespace

void QuickSave(App& app) {
  Trapped(app.faults, "MDIForm1.memsave", [&app] {
    SaveFile(app, kQuickSaveFile, [&app](TextWriter& out) { WriteProject(app.model, out); });
  });
}

void QuickGet(App& app) {
  Trapped(app.faults, "MDIForm1.restoreit", [&app] {
    OpenFile(app, kQuickSaveFile, [&app](std::string_view text) {
      ReadProject(app.model, text);
      return CountsOfParts(app);
    });
    FollowCounts(app);
    FollowProfileSections(app);
    FollowSections(app);
    app.form51.ShowProfile();
    RefreshViews(app);
  });
}

}  // namespace pelorium
