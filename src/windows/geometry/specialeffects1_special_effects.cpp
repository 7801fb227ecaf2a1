// "Special Effects".
#include "windows/geometry/specialeffects1_special_effects.h"

#include <string>

#include "geometry/join_points.h"
#include "windows/shell/app_shell.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

SpecialEffects1::SpecialEffects1(App& app) : ToolWindow(app, "specialeffects1", "Special Effects") {
  OnEdit(Command10, [this] { Command10_Click(); });
  SetLayout(Column({
      Frame("Combine points", {BarRow(HScroll3), Flow({&Command10}), Single(ProgressBar1)}),
  }));
}

void SpecialEffects1::Command10_Click() {
  JoinSettings settings;
  settings.part = CurrentPart(app_);
  settings.tolerance = HScroll3.value();
  settings.moveFaceCorners = !CornersFollow(app_);  // else the sync brings them along
  ProgressBar1.SetMax(app_.model.Part(settings.part).maxpoints);
  const int moved = JoinPoints(app_.model, settings, [this](int point) { ProgressBar1.SetValue(point); });
  HScroll3.box.SetText(std::to_string(moved));
}

}  // namespace pelorium
