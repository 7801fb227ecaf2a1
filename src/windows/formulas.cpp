// "Edit Profile".
#include "windows/formulas.h"

#include "windows/app.h"
#include "windows/form51.h"
#include "windows/refresh_views.h"

namespace pelorium {

Formulas::Formulas(App& app) : Window(app.host, "Formulas", "Edit Profile"), app_(app) {
  for (OptionButton* option : {&Option4, &Option5, &Option6, &Option7}) {
    option->onClick = [this](const Click&) { SubView_Click(); };
  }
  Pair(HScroll27, Text32);
  Pair(HScroll28, Text33);
  SetLayout(Column({
      Frame("View", {Flow({&Option4, &Option5, &Option6, &Option7})}),
      BarRow(HScroll27, {&Text32}),
      BarRow(HScroll28, {&Text33}),
  }));
}

Projection Formulas::SubView() const {
  if (Option5.value()) return Projection::Top;
  if (Option6.value()) return Projection::Side;
  if (Option7.value()) return Projection::Oblique;
  return Projection::Front;
}

void Formulas::SubView_Click() {
  app_.form51.Option1.SetValue(true);
  RefreshViews(app_);
}

}  // namespace pelorium
