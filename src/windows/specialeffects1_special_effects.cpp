// "Special Effects".
#include "windows/specialeffects1_special_effects.h"

#include <string>

#include "geometry/join_points.h"
#include "windows/app.h"
#include "windows/form51_view_options.h"
#include "windows/refresh_views.h"
#include "windows/shared_parameters.h"

namespace pelorium {

SpecialEffects1::SpecialEffects1(App& app)
    : Window(app.host, "specialeffects1", "Special Effects"), app_(app) {
  Pair(HScroll3, Text15);
  Command10.onClick = [this](const Click&) { Command10_Click(); };
  SetLayout(Column({
      Frame("Combine points", {BarRow(HScroll3, {&Text15}), Flow({&Command10}), Single(ProgressBar1)}),
  }));
}

void SpecialEffects1::Command10_Click() {
  Trapped(app_.faults, "specialeffects1.Command10", [this] {
    JoinSettings settings;
    settings.part = CurrentPart(app_);
    settings.tolerance = HScroll3.value();
    settings.moveFaceCorners = app_.form51.Check6.value();  // else the sync brings them along
    ProgressBar1.SetMax(app_.model.Part(settings.part).maxpoints);
    const int moved = JoinPoints(app_.model, settings, [this](int point) { ProgressBar1.SetValue(point); });
    Text15.SetText(std::to_string(moved));
    SyncFaceCorners(app_);
  });
  RefreshViews(app_);
}

}  // namespace pelorium
