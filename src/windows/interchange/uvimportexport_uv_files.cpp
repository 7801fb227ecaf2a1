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
  Check2.onClick = [this](const Click&) {
    Check1.SetValue(Check2.value());
    Check13.SetValue(Check2.value());
  };
  BindUvButtons();
  OnFile(Command25, [this] { Import(ObjKind::Plain, "All Files (*.obj)|*.obj"); });
  OnFile(Command1, [this] { Import(ObjKind::WithSlashes, "All Files (*.obj*)|*.obj*"); });
  OnFile(Command26, [this] { Command26_Click(); });
  BrowseInto(Dir1, File1, Text13);
  SetLayout(Column({
      Labelled("File", Text13),
      Row({Single(Dir1), Single(File1)}),
      Frame("Manage texture uv's mapping  (UVMapper Classic)",
            {Flow({&Command2, &Command3, &Command4, &Command5})}),
      Frame("Import",
            {BarRow(HScroll2), Flow({&Check7, &Check6}), Flow({&Command25, &Command1}), Single(Label1)}),
      Frame("Export", {Flow({&Check2, &Check13, &Check1}), Flow({&Check3, &Check5, &Check4, &Check12}),
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
      Command2,
      [this] {
        if (AskUvsName(false)) ImportUvs(app_, Text13.text(), kUvsFormat);
      },
      kRefreshOnly);
  OnFile(Command3, [this] {
    if (!AskUvsName(false)) return;
    const std::filesystem::path file = Text13.text();
    app_.model.Part(CurrentPart(app_)).PartName = file.filename().string();
    ImportUvsAsModel(app_, file, kUvsFormat, HScroll2.Number());
    Label1.SetCaption(ImportedCounts(app_));
  });
  OnFile(Command4, [this] {
    if (AskUvsName(true)) ExportUvs(app_, Text13.text());
  });
  OnFile(Command5, [this] {
    if (AskUvsName(true)) ExportTopViewAsUvs(app_, Text13.text());
  });
}

// The mapping comes from the same file, once the geometry is there.
void UvImportExport::Import(ObjKind kind, const char* filter) {
  if (!AskName(false, "Open", "objs", filter)) return;
  ObjImportSettings settings;
  settings.kind = kind;
  settings.offFacesAsOn = Check7.value();
  settings.scale = HScroll2.Number();
  settings.origin = Origin(app_);
  ImportObj(app_, Text13.text(), settings);
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
  ObjExportSettings settings;
  settings.dialect = ObjDialect::Older;
  if (Check3.value()) settings.materialLibrary = kMaterialFile;
  settings.groupPerPart = Check13.value();
  settings.groupPerFace = Check1.value();
  settings.textureCoordinates = Check5.value();
  settings.scaledDown = Check12.value();
  ExportFile(app_, Text13.text(), [&](TextWriter& out) { WriteObj(app_.model, settings, out); });
}

}  // namespace pelorium
