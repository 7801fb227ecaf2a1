// Builds the windows of this room.
#include "windows/geometry/geometry_windows.h"

#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/geometry/specialeffects6_mesh.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

GeometryWindows::GeometryWindows(App& app)
    : revolveprof(app.Add<RevolveProf>()),
      form55(app.Add<Form55>()),
      specialeffects1(app.Add<SpecialEffects1>()),
      specialeffects5(app.Add<SpecialEffects5>()),
      specialeffects6(app.Add<SpecialEffects6>()) {
  app.links.pickShape = [this] {
    return PickShapeSettings{!specialeffects5.Option3.value(), specialeffects5.HScroll6.Shown()};
  };
  app.links.addMeshPoint = [this](double x, double y) { specialeffects6.AddPoint(x, y); };
  app.links.showSections = [this](int sections) {
    revolveprof.HScroll10.SetValue(revolveprof.HScroll10.Clamped(sections));
  };
}

}  // namespace pelorium
