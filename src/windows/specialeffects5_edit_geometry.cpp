// "Edit Geometry".
#include "windows/specialeffects5_edit_geometry.h"

#include "windows/app.h"

namespace pelorium {

SpecialEffects5::SpecialEffects5(App& app) : Window(app.host, "specialeffects5", "Edit Geometry"), app_(app) {}

void SpecialEffects5::FollowFaceRange() {}

}  // namespace pelorium
