// Builds all windows.
#include "windows/facetools/facetools_windows.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/mdi_form1.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// The program's order of windows, whatever the order of building: of lists, of Exit, and of the hooks behind
// their first. A window that is not named stands before the last.
const std::vector<const char*> kOrder = {
    "frmSplash",       "MDIForm1",       "Form51",      "Form5",           "Formulas",
    "Formulas2frm",    "Formulas3frm",   "frmsaveprof", "editbyface",      "revolveprof",
    "Form55",          "freeface",       "unfold",      "specialeffects1", "specialeffects5",
    "specialeffects6", "Form31",         "Form12",      "Form14",          "Form15",
    "Form47",          "uvimportexport", "convert",     "material",        "shapes",
    "shapes2",         "Dialog",         "texture",     "Specialeffects3", "Plasma",
    "Plasmathree",     "frmPerlinNoise", "Form45",      "frmCustomFilter", "frmAddNoise",
    "helpme",          "frmAbout",       "Form36",
};

}  // namespace

void BuildWindows(App& app) {
  app.view = std::make_shared<ViewWindows>(app);
  app.profiles = std::make_shared<ProfileWindows>(app);
  app.geometry = std::make_shared<GeometryWindows>(app);
  app.facetools = std::make_shared<FacetoolWindows>(app);
  app.imaging = std::make_shared<ImagingWindows>(app);
  app.interchange = std::make_shared<InterchangeWindows>(app);
  app.frame = std::make_shared<FrameWindows>(app);
  app.links.pressMenuItem = [&app](std::string_view name) {
    Control* item = app.frame->mdiForm1.Find(name);
    if (item != nullptr && item->enabled()) item->Press({});
  };
  app.links.start = [&app] { app.frame->mdiForm1.Load(); };
  app.SetOrder(kOrder);
}

}  // namespace pelorium
