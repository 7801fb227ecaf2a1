// Welding a seam.
#include "windows/weld_seam.h"

#include "windows/app.h"
#include "windows/shared_parameters.h"
#include "windows/specialeffects1_special_effects.h"

namespace pelorium {

void JoinClosePoints(App& app) {
  constexpr int kDistance = 2;
  app.specialeffects1.HScroll3.SetValue(kDistance);
  app.specialeffects1.Command10.Press();
}

void WeldSeam(App& app) {
  JoinClosePoints(app);
  --app.model.Part(CurrentPart(app)).Sections;
}

}  // namespace pelorium
