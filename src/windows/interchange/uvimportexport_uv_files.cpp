// "Import export UV's".
#include "windows/interchange/uvimportexport_uv_files.h"

#include "base/files.h"
#include "interchange/material_file.h"
#include "interchange/obj_export.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/import_file.h"
#include "windows/interchange/import_obj.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/interchange/uv_commands.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {
constexpr const char* kMaterialFile = "materialfile.mtl";
}

UvImportExport::UvImportExport(App& app) : ToolWindow(app, "uvimportexport", "Import export UV's") {
  Text13.SetText((app.applicationPath / "obj1.uvs").string());
  BindUvButtons();
  OnFile(imports.Command25, [this] { Import(ObjKind::Plain, "All Files (*.obj)|*.obj"); });
  OnFile(imports.Command1, [this] { Import(ObjKind::WithSlashes, "All Files (*.obj*)|*.obj*"); });
  OnFile(Command26, [this] { Command26_Click(); });
  BrowseInto(Dir1, File1, Text13);
  SetLayout(Column({
      Labelled("File", Text13),
      Row({Single(Dir1), Single(File1)}),
      Frame("Manage texture uv's mapping  (UVMapper Classic)",
            {Flow({&uvs.Command2, &uvs.Command3, &uvs.Command4, &uvs.Command5})}),
      Frame("Import", {BarRow(imports.HScroll2), Flow({&imports.Check7, &Check6}),
                       Flow({&imports.Command25, &imports.Command1}), Single(Label1)}),
      Frame("Export", {Flow({&options.Check2, &options.Check13, &options.Check1}),
                       Flow({&options.Check3, &options.Check5, &options.Check4, &options.Check12}),
                       Flow({&Command26})}),
  }));
}

void UvImportExport::Load() {
  Dir1.SetFolder(app_.applicationPath / "objs");
  File1.SetFolder(app_.applicationPath / "objs");
}

bool UvImportExport::AskName(bool save, const char* title, const char* folder, const char* filter) {
  const auto name = AskFileName(app_, {save, title, folder, filter, ""});
  if (!name.empty()) Text13.SetText(name.string());
  return !name.empty();
}

bool UvImportExport::AskUvsName(bool save) {
  return AskName(save, "Import uvs", "uvmapperclassicuvs", "All Files (*.uvs*)|*.uvs*");
}

void UvImportExport::BindUvButtons() {
  OnEdit(
      uvs.Command2,
      [this] {
        if (AskUvsName(false)) ImportUvs(app_, Text13.text(), kUvsFormat);
      },
      kRefreshOnly);
  OnFile(uvs.Command3, [this] {
    if (!AskUvsName(false)) return;
    const std::filesystem::path file = Text13.text();
    app_.model.Part(CurrentPart(app_)).PartName = file.filename().string();
    ImportUvsAsModel(app_, file, kUvsFormat, imports.HScroll2.Shown());
    Label1.SetCaption(ImportedCounts(app_));
  });
  OnFile(uvs.Command4, [this] {
    if (AskUvsName(true)) ExportUvs(app_, Text13.text(), OldFile::IsReplaced);
  });
  OnFile(uvs.Command5, [this] {
    if (AskUvsName(true)) ExportTopViewAsUvs(app_, Text13.text(), OldFile::IsReplaced);
  });
}

// The mapping comes from the same file, once the geometry is there.
void UvImportExport::Import(ObjKind kind, const char* filter) {
  if (!AskName(false, "Open", "objs", filter)) return;
  ImportObj(app_, Text13.text(), imports.Settings(app_, kind));
  Label1.SetCaption(ImportedCounts(app_));
  if (kind != ObjKind::WithSlashes || !Check6.value()) return;
  ImportUvs(app_, Text13.text(), kObjFormat);
  RefreshViews(app_);
}

// The obj names its material file without a folder, so it finds it when both lie in the folder of the list.
void UvImportExport::Command26_Click() {
  if (!AskName(true, "Export wavefront format obj", "objs", "All Files (*.obj*)|*.obj*")) return;
  WriteFile(Dir1.folder() / kMaterialFile, [this](TextWriter& out) {
    WriteMaterialFile(app_.model, app_.interchange->form14.Option2.value() ? ".psd" : ".bmp", out);
  });
  ObjExportSettings settings = options.Settings(kMaterialFile);
  settings.dialect = ObjDialect::Older;
  ExportFile(app_, Text13.text(), [&](TextWriter& out) { WriteObj(app_.model, settings, out); });
}

}  // namespace pelorium
