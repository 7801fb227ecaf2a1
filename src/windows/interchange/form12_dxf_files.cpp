// "Import/Export  Dxf  (.dxf)".
#include "windows/interchange/form12_dxf_files.h"

#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "windows/interchange/import_file.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {
constexpr const char* kEnding = "*.dxf";
}

Form12::Form12(App& app) : ToolWindow(app, "Form12", "Import/Export  Dxf  (.dxf)") {
  Text6.SetText((app.applicationPath / "obj1.dxf").string());
  BindExports();
  BindImports();
  BrowseInto(Dir1, File1, Text6);
  SetLayout(DeclareLayout());
}

LayoutItem Form12::DeclareLayout() {
  return Column({
      Labelled("File", Text6),
      Row({Single(Dir1), Single(File1)}),
      Frame("Export as DXF   ",
            {Single(exportsCurrentPart),
             Flow({&Command32, &Command1, &Command4, &Command21, &Command5, &Command7, &Command6, &Command9}),
             BarRow(HScroll4), BarRow(HScroll1), BarRow(HScroll3), BarRow(HScroll2), BarRow(HScroll6)},
            "Export obj as DXF options"),
      Frame("Import Dxf", {Flow({&Command12, &Command13, &Command2, &Command3}), BarRow(HScroll5)}),
  });
}

void Form12::Load() {
  Dir1.SetFolder(app_.applicationPath / "dxf");
  File1.SetFolder(app_.applicationPath / "dxf");
}

void Form12::PartChosen() { HScroll6.SetValue(CurrentPart(app_)); }

void Form12::OnExport(PushButton& button, const char* folder, const char* title, const FileWriter& write,
                      const char* filter) {
  OnFile(button, [=, this] {
    const auto name = AskFileName(app_, {true, title, folder, filter, kEnding});
    if (name.empty()) return;
    Text6.SetText(name.string());
    ExportFile(app_, name, write);
  });
}

void Form12::BindExports() {
  const auto part = [this] { return CurrentPart(app_); };
  const ModelStore& model = app_.model;
  OnExport(Command32, "dxf", "Export Dxf Tri", [=, this, &model](TextWriter& out) {
    WriteDxfTriangles(model, part(), Colour(), std::nullopt, out);
  });
  OnExport(Command1, "dxf", "Export Dxf Tri", [=, this, &model](TextWriter& out) {
    WriteDxfTriangles(model, part(), Colour(), HScroll4.value(), out);
  });
  OnExport(Command4, "dxf", "Export Subdevided",
           [=, this, &model](TextWriter& out) { WriteDxfSubdivided(model, part(), Colour(), out); });
  OnExport(Command21, "dxfmesh", "Export dxf mesh",
           [=, &model](TextWriter& out) { WriteDxfMesh(model, part(), out); });
  OnExport(Command5, "dxfpoints", "Export Dxf Tri",
           [=, this, &model](TextWriter& out) { WriteDxfPoints(model, part(), Colour(), out); });
  OnExport(Command7, "dxf", "Export as DXF Solid (Planar object)", [=, this, &model](TextWriter& out) {
    WriteDxfSolids(model, part(), Colour(), HScroll3.value(), out);
  });
  OnExport(
      Command6, "dxfwireframe", "Save Dxf Wireframe",
      [this, &model](TextWriter& out) { WriteDxfProfiles(model, Colour(), out); }, "All Files (*.dxf)|*.dxf");
  OnExport(Command9, "dxfwireframe", "Save dxf wireframe", [this, &model](TextWriter& out) {
    const Form5& ranges = app_.view->form5;
    const ProfileGrid grid = {ranges.HScroll1.value(), ranges.HScroll2.value(), PointRangeStart(app_),
                              PointRangeEnd(app_)};
    WriteDxfProfileGrid(model, HeldInTable(grid), Colour(), out);
  });
}

void Form12::BindImports() {
  OnFile(Command12, [this] { AskAndImport("dxf", ReadDxfTriangles); });
  OnFile(Command13, [this] { AskAndImport("dxfquad", ReadDxfQuads); });
  OnFile(Command2, [this] { AskAndImport("dxfmesh", ReadDxfMesh); });
  OnFile(Command3, [this] { Import(ReadDxfMesh); });
}

void Form12::AskAndImport(const char* folder, Reader read) {
  const auto name = AskFileName(app_, {false, "Open", folder, kFilter, kEnding});
  if (name.empty()) return;
  Text6.SetText(name.string());
  Import(read);
}

void Form12::Import(Reader read) {
  ImportFile(app_, Text6.text(),
             [this, read](ByteSource& file) { read(app_.model, CurrentPart(app_), file, HScroll5.Shown()); });
}

}  // namespace pelorium
