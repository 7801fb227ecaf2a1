// Welding a seam.
#include "windows/geometry/weld_seam.h"

#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/shell/app_shell.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

void JoinClosePoints(App& app) {
  constexpr int kDistance = 2;
  app.geometry->specialeffects1.HScroll3.SetValue(kDistance);
  app.geometry->specialeffects1.Command10.Press();
}

void WeldSeam(App& app) {
  JoinClosePoints(app);
  --app.model.Part(CurrentPart(app)).Sections;
}

}  // namespace pelorium
