// Texture coordinates from files and into files.
#include "windows/interchange/uv_commands.h"

#include <string>
#include <utility>

#include "base/files.h"
#include "interchange/obj_uvs.h"
#include "interchange/uvs_file.h"
#include "windows/interchange/import_file.h"
#include "windows/interchange/scratch_files.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

template <VtNumbers perLine>
void ReadMapping(ModelStore& model, int part, const UvLines& lines) {
  ReadObjUvs(model, part, lines, perLine);
}

template <VtNumbers perLine>
void ReadModel(ModelStore& model, int part, const UvLines& lines, double scale) {
  ReadObjUvsAsModel(model, part, lines, perLine, scale);
}

UvLines Split(App& app, const std::filesystem::path& name, const UvFormat& format) {
  FileSource file(FileNamed(app, name));
  UvLines lines = format.split(file);
  WriteScratchFiles(app, lines.points.text(), lines.faces.text(), format.scratchEnding);
  return lines;
}

}  // namespace

const UvFormat kUvsFormat = {SplitUvs, ReadUvs, ReadUvsAsModel, ""};
const UvFormat kObjFormat = {SplitObjUvs, ReadMapping<VtNumbers::Two>, ReadModel<VtNumbers::Two>, "1"};
const UvFormat kObjFormatOf3 = {SplitObjUvs, ReadMapping<VtNumbers::Three>, ReadModel<VtNumbers::Three>, "1"};

void ImportUvs(App& app, const std::filesystem::path& name, const UvFormat& format) {
  const UvLines lines = Split(app, name, format);
  format.readUvs(app.model, CurrentPart(app), lines);
  const PartHeader& part = std::as_const(app.model).Part(CurrentPart(app));
  app.notices.Give(std::to_string(part.vtcount) + " UV points, " + std::to_string(part.vtfacecount) +
                       " UV faces from " + name.filename().string(),
                   NoticeKind::Result);
}

void ImportUvsAsModel(App& app, const std::filesystem::path& name, const UvFormat& format, double scale) {
  const UvLines lines = Split(app, name, format);
  format.readModel(app.model, CurrentPart(app), lines, scale);
  FinishImport(app, name);
}

void ExportUvs(App& app, const std::filesystem::path& name, OldFile old) {
  ExportFile(
      app, name, [&app](TextWriter& out) { WriteUvs(app.model, CurrentPart(app), out); }, old);
}

void ExportTopViewAsUvs(App& app, const std::filesystem::path& name, OldFile old) {
  ExportFile(
      app, name, [&app](TextWriter& out) { WriteTopViewAsUvs(app.model, CurrentPart(app), out); }, old);
}

}  // namespace pelorium
