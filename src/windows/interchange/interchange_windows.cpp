// Builds the windows of this room.
#include "windows/interchange/interchange_windows.h"

#include "windows/interchange/convert_tuv_files.h"
#include "windows/interchange/dialog_preset_parts.h"
#include "windows/interchange/form12_dxf_files.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/material_materials.h"
#include "windows/interchange/shapes_parts_library.h"
#include "windows/interchange/uvimportexport_uv_files.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

InterchangeWindows::InterchangeWindows(App& app)
    : form12(app.Add<Form12>()),
      form14(app.Add<Form14>()),
      uvimportexport(app.Add<UvImportExport>()),
      convert(app.Add<Convert>()),
      material(app.Add<Material>()),
      shapes(app.Add<Shapes>()),
      shapes2(app.Add<Shapes2>()),
      dialog(app.Add<Dialog>()) {}

}  // namespace pelorium
