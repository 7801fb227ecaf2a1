// OBJ files into the current Part.
#include "windows/interchange/import_obj.h"

#include "windows/interchange/import_file.h"
#include "windows/interchange/scratch_files.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

void ImportObj(App& app, const std::filesystem::path& file, const ObjImportSettings& settings) {
  ImportFile(app, file, [&](ByteSource& bytes) {
    const ObjLines lines = SplitObj(bytes, settings.kind, settings.offFacesAsOn);
    WriteScratchFiles(app, lines.points.text(), lines.faces.text());
    ReadObjLines(app.model, CurrentPart(app), lines, settings);
  });
}

void ImportObjPart(App& app, const std::filesystem::path& file, double scale) {
  ObjImportSettings settings;
  settings.scale = scale;
  settings.origin.reset();
  ImportObj(app, file, settings);
  ShowImportedCounts(app);
}

void ShowImportedCounts(App& app) { app.view->form5.Label1.SetCaption(ImportedCounts(app)); }

}  // namespace pelorium
