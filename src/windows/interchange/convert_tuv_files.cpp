// "convert ultimate unwrap3d tuv files (Import)". The file goes through a DXF file, whose digits the model
// takes.
#include "windows/interchange/convert_tuv_files.h"

#include <string>

#include "base/files.h"
#include "interchange/dxf_import.h"
#include "interchange/scratch_file.h"
#include "interchange/tuv_file.h"
#include "windows/interchange/import_file.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr const char* kFolder = "ultimateunwraptuvs";
constexpr std::size_t kMostBytes = 1 << 24;  // no file that fits into a Part is longer

}  // namespace

Convert::Convert(App& app) : ToolWindow(app, "convert", "convert ultimate unwrap3d tuv files (Import)") {
  OnFile(Command1, [this] {
    if (AskName(false)) Import();
  });
  OnFile(Command3, [this] { Import(); });
  OnFile(Command2, [this] {
    if (!AskName(true)) return;
    ExportFile(app_, Text2.text(),
               [this](TextWriter& out) { WriteTuvTriangle(app_.model, CurrentPart(app_), out); });
  });
  BrowseInto(Dir1, File1, Text2);
  SetLayout(Column({
      Labelled("File", Text2),
      Row({Single(Dir1), Single(File1)}),
      BarRow(HScroll1),
      Flow({&Command1, &Command3, &Command2}),
  }));
}

void Convert::Load() {
  Dir1.SetFolder(app_.applicationPath / kFolder);
  File1.SetFolder(app_.applicationPath / kFolder);
}

bool Convert::AskName(bool save) {
  const auto name = AskFileName(
      app_, {save, save ? Command2.caption() : "Import tuv", kFolder, "All Files (*.tuv*)|*.tuv*", ""});
  if (!name.empty()) Text2.SetText(name.string());
  return !name.empty();
}

void Convert::Import() {
  const std::filesystem::path name = Text2.text();
  PartHeader& part = app_.model.Part(CurrentPart(app_));
  part.PartName = name.string();
  const std::string tuv = ReadFile(FileNamed(app_, name), kMostBytes);
  const std::string dxf =
      ThroughScratchFile(ScratchPlacesFor(app_.applicationPath, "3dfacedxf.dxf"),
                         [&](TextWriter& out) { WriteTuvAsDxf(tuv, HScroll1.Number(), out); });
  StringSource source(dxf);
  ReadDxfTriangles(app_.model, CurrentPart(app_), source, 1);  // the scale is in the file already
  FinishImport(app_, name);
}

}  // namespace pelorium
