// "Import/Export Obj  (.obj)".
#include "windows/interchange/form14_obj_files.h"

#include "base/files.h"
#include "interchange/material_file.h"
#include "interchange/obj_export.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"

namespace pelorium {

namespace {
constexpr const char* kMaterialFileEnding = "_materialfile.mtl";  // behind the whole name, ".obj" and all
}

Form14::Form14(App& app) : ToolWindow(app, "Form14", "Import/Export Obj  (.obj)") {
  Text13.SetText((app.applicationPath / "obj1.obj").string());
  Check2.onClick = [this](const Click&) { Check2_Click(); };
  OnFile(Command26, [this] { Command26_Click(); });
  BrowseInto(Dir1, File1, Text13);
  SetLayout(Column({
      Labelled("File", Text13),
      Row({Single(Dir1), Single(File1)}),
      Frame("Groups", {Flow({&Check2, &Check13, &Check1})}),
      Frame("Export",
            {Flow({&Check3, &Option1, &Option2}), Flow({&Check5, &Check4, &Check12}), Flow({&Command26})}),
  }));
}

void Form14::Load() {
  Dir1.SetFolder(app_.applicationPath / "objs");
  File1.SetFolder(app_.applicationPath / "objs");
}

void Form14::Check2_Click() {
  Check1.SetValue(Check2.value());
  Check13.SetValue(Check2.value());
}

// The material file is written in any case; the OBJ file refers to it only with Check3.
void Form14::Command26_Click() {
  const auto name =
      AskFileName(app_, {true, "Export wavefront format obj", "objs", "All Files (*.obj*)|*.obj*", ""});
  if (name.empty()) return;
  Text13.SetText(name.string());
  const std::string materialFile = name.string() + kMaterialFileEnding;
  WriteFile(FileNamed(app_, materialFile), [this](TextWriter& out) {
    WriteMaterialFile(app_.model, Option2.value() ? ".psd" : ".bmp", out);
  });
  ObjExportSettings settings;
  if (Check3.value()) settings.materialLibrary = materialFile;
  settings.groupPerPart = Check13.value();
  settings.groupPerFace = Check1.value();
  settings.textureCoordinates = Check5.value();
  settings.scaledDown = Check12.value();
  ExportFile(app_, name, [&](TextWriter& out) { WriteObj(app_.model, settings, out); });
}

}  // namespace pelorium
