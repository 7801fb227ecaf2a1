// "Import/Export Obj  (.obj)".
#include "windows/interchange/form14_obj_files.h"

#include "base/files.h"
#include "interchange/material_file.h"
#include "interchange/obj_export.h"
#include "windows/interchange/import_file.h"
#include "windows/interchange/import_obj.h"
#include "windows/interchange/uv_commands.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {
constexpr const char* kMaterialFileEnding = "_materialfile.mtl";  // behind the whole name, ".obj" and all
}

Form14::Form14(App& app) : ToolWindow(app, "Form14", "Import/Export Obj  (.obj)") {
  Text13.SetText((app.applicationPath / "obj1.obj").string());
  OnFile(imports.Command25, [this] { Import(ObjKind::Plain, "All Files (*.obj)|*.obj"); });
  OnFile(imports.Command1, [this] { Import(ObjKind::WithSlashes, "All Files (*.obj*)|*.obj*"); });
  OnFile(Command26, [this] { Command26_Click(); });
  BindUvButtons();
  BrowseInto(Dir1, File1, Text13);
  SetLayout(DeclareLayout());
}

LayoutItem Form14::DeclareLayout() {
  return Column({
      Labelled("File", Text13),
      Row({Single(Dir1), Single(File1)}),
      Frame("Import",
            {BarRow(imports.HScroll2), Flow({&imports.Check7}), Flow({&imports.Command25, &imports.Command1}),
             Single(withSlashesNote), Single(Label1)}),
      Frame("Groups", {Flow({&options.Check2, &options.Check13, &options.Check1})}),
      Frame("Export", {Flow({&options.Check3, &Option1, &Option2}),
                       Flow({&options.Check5, &options.Check4, &options.Check12}), Flow({&Command26})}),
      Frame("Manage texture uv's mapping  (UVMapper Classic)",
            {Flow({&uvs.Command2, &uvs.Command3, &uvs.Command4, &uvs.Command5, &Command6, &Command17})}),
      Frame("Model Part# from obj UV's options", {Flow({&Command7, &Command16})}),
      Single(sizesNote),
      Single(treesNote),
  });
}

// All of them work on the file named in Text13.
void Form14::BindUvButtons() {
  const auto onMapping = [this](PushButton& button, const UvFormat& format) {
    OnEdit(
        button, [this, &format] { ImportUvs(app_, Text13.text(), format); }, kRefreshOnly);
  };
  onMapping(uvs.Command2, kUvsFormat);
  onMapping(Command6, kObjFormat);
  onMapping(Command17, kObjFormatOf3);
  const auto onModel = [this](PushButton& button, const UvFormat& format) {
    OnFile(button, [this, &format] { ImportMap(format); });
  };
  onModel(uvs.Command3, kUvsFormat);
  onModel(Command7, kObjFormat);
  onModel(Command16, kObjFormatOf3);
  OnFile(uvs.Command4, [this] { ExportUvs(app_, Text13.text(), OldFile::IsKept); });
  OnFile(uvs.Command5, [this] { ExportTopViewAsUvs(app_, Text13.text(), OldFile::IsKept); });
}

// Only the file of the UV mapper gives the Part its name.
void Form14::ImportMap(const UvFormat& format) {
  const std::filesystem::path file = Text13.text();
  if (&format == &kUvsFormat) app_.model.Part(CurrentPart(app_)).PartName = file.filename().string();
  ImportUvsAsModel(app_, file, format, imports.HScroll2.Shown());
  Label1.SetCaption(ImportedCounts(app_));
}

void Form14::Load() {
  Dir1.SetFolder(app_.applicationPath / "objs");
  File1.SetFolder(app_.applicationPath / "objs");
}

void Form14::Import(ObjKind kind, const char* filter) {
  const auto name = AskFileName(app_, {false, "Open", "objs", filter, ""});
  if (name.empty()) return;
  Text13.SetText(name.string());
  ImportObj(app_, name, imports.Settings(app_, kind));
  Label1.SetCaption(ImportedCounts(app_));
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
  ExportFile(app_, name, [&](TextWriter& out) { WriteObj(app_.model, options.Settings(materialFile), out); });
}

}  // namespace pelorium
