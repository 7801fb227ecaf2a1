// Where the shared parameters are kept.
#include "windows/shared_parameters.h"

#include "base/numbers.h"
#include "windows/app.h"
#include "windows/form51_view_options.h"
#include "windows/form5_precise_edit.h"

namespace pelorium {

int CurrentPart(const App& app) { return app.form51.HScroll4.value(); }
int CurrentProfile(const App& app) { return app.form51.HScroll3.value(); }
int PointRangeStart(const App& app) { return app.form5.HScroll20.value(); }
int PointRangeEnd(const App& app) { return app.form5.HScroll25.value(); }
int FaceRangeStart(const App& app) { return app.form51.HScroll7.value(); }
int FaceRangeEnd(const App& app) { return app.form51.HScroll5.value(); }

Vec3 Origin(const App& app) {
  return {app.form5.Text5.Number(), app.form5.Text9.Number(), app.form5.Text3.Number()};
}

void SetOrigin(App& app, const Vec3& origin) {
  app.form5.Text5.SetText(GeneralForm(origin.X));
  app.form5.Text9.SetText(GeneralForm(origin.Y));
  app.form5.Text3.SetText(GeneralForm(origin.Z));
}

ChosenPoints Chosen(const App& app) { return {CurrentPart(app), PointRangeStart(app), PointRangeEnd(app)}; }

}  // namespace pelorium
