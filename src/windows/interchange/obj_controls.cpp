// What the controls of the windows of OBJ files stand for.
#include "windows/interchange/obj_controls.h"

#include "windows/view/shared_parameters.h"

namespace pelorium {

ObjImportSettings ObjImportControls::Settings(const App& app, ObjKind kind) const {
  ObjImportSettings settings;
  settings.kind = kind;
  settings.offFacesAsOn = Check7.value();
  settings.scale = HScroll2.Shown();
  settings.origin = Origin(app);
  return settings;
}

ObjExportOptions::ObjExportOptions(Window& owner, const char* materialFileTip)
    : owner_(owner), materialTip_(materialFileTip) {
  Check2.onClick = [this](const Click&) {
    Check1.SetValue(Check2.value());
    Check13.SetValue(Check2.value());
  };
}

ObjExportSettings ObjExportOptions::Settings(const std::string& materialFile) const {
  ObjExportSettings settings;
  if (Check3.value()) settings.materialLibrary = materialFile;
  settings.groupPerPart = Check13.value();
  settings.groupPerFace = Check1.value();
  settings.textureCoordinates = Check5.value();
  settings.scaledDown = Check12.value();
  return settings;
}

}  // namespace pelorium
