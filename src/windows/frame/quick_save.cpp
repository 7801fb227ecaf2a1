// The quick save.
#include "windows/frame/quick_save.h"

#include "core/project_file.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

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
  app.geometry->revolveprof.HScroll10.SetValue(
      app.geometry->revolveprof.HScroll10.Clamped(sectionsOfProfile));
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
    app.view->form51.ShowProfile();
    RefreshViews(app);
  });
}

}  // namespace pelorium
