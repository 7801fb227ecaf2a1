// "Edit Profile".
#include "windows/formulas_edit_profile.h"

#include "windows/app.h"
#include "windows/form51_view_options.h"
#include "windows/formulas2frm_profile_formulas.h"
#include "windows/formulas3frm_edit_profile_ranges.h"
#include "windows/refresh_views.h"
#include "windows/shared_parameters.h"

namespace pelorium {

Formulas::Formulas(App& app) : Window(app.host, "Formulas", "Edit Profile"), view(*this, app), app_(app) {
  Pair(HScroll27, Text32);
  Pair(HScroll28, Text33);
  Pair(HScroll25, Text30);
  Pair(HScroll3, Text2);
  for (ScrollBar* selector : {&HScroll25, &HScroll3}) {
    selector->onChange = [this, selector] { app_.form51.HScroll3.SetValue(selector->value()); };
  }
  SetLayout(Column({
      Frame("View", {Flow(view.All())}),
      BarRow(HScroll25, {&Text30}),
      BarRow(HScroll27, {&Text32}),
      BarRow(HScroll28, {&Text33}),
      BarRow(HScroll3, {&Text2}),
  }));
}

void Formulas::ChooseSubView(Projection projection) {
  for (ProfileViewOptions* options : {&view, &app_.formulas2frm.view, &app_.formulas3frm.view}) {
    options->Of(projection).SetValue(true);
  }
  app_.form51.Option1.SetValue(true);
  RefreshViews(app_);
}

void Formulas::ShowProfile() {
  HScroll25.SetValue(CurrentProfile(app_));
  HScroll3.SetValue(CurrentProfile(app_));
}

}  // namespace pelorium
