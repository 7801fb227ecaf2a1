// Parts from OBJ files.
#include "windows/interchange/import_obj_part.h"

#include "interchange/obj_import.h"
#include "windows/interchange/import_file.h"
#include "windows/interchange/scratch_files.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

void ImportObjPart(App& app, const std::filesystem::path& file, double scale) {
  ImportFile(app, file, [&](ByteSource& bytes) {
    const ObjLines lines = SplitObj(bytes, ObjKind::Plain, false);
    WriteScratchFiles(app, lines.points.text(), lines.faces.text());
    ObjImportSettings settings;
    settings.scale = scale;
    settings.origin.reset();
    ReadObjLines(app.model, CurrentPart(app), lines, settings);
  });
  ShowImportedCounts(app);
}

void ShowImportedCounts(App& app) { app.view->form5.Label1.SetCaption(ImportedCounts(app)); }

}  // namespace pelorium
