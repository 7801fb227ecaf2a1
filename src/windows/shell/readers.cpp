// Readers through the links of the rooms.
#include "windows/shell/readers.h"

#include "windows/shell/app_shell.h"

namespace pelorium {

Projection SubView(const App& app) { return app.links.subView(); }
double Elevation(const App& app) { return app.links.elevation(); }
PickShapeSettings PickSettings(const App& app) { return app.links.pickShape(); }
int ChosenPoint(const App& app) { return app.links.chosenPoint(); }
int ChosenFace(const App& app) { return app.links.chosenFace(); }

std::string LackOfPicture(App& app) {
  return app.platform.HasClipboardPicture() ? "" : "no picture on the clipboard";
}

}  // namespace pelorium
