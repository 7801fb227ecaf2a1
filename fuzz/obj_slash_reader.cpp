// Fuzz target of the reader of OBJ files whose corners hold more than a point.
#include "interchange/obj_export.h"
#include "interchange/obj_import.h"
#include "mesh_reader.h"

using namespace pelorium;

namespace {

void Read(ModelStore& model, std::string_view text) {
  StringSource file(text);
  ObjImportSettings settings;
  settings.kind = ObjKind::WithSlashes;
  settings.offFacesAsOn = true;
  settings.origin.reset();
  ReadObj(model, kPart, file, settings);
}

void Write(const ModelStore& model, TextWriter& out) {
  WriteObj(model, {"", false, false, true, false}, out);
}
// No line of the text is longer than what is read of it.
bool IsRead(const std::string& text) {
  StringSource source(text);
  LineReader lines(source);
  for (std::string_view line; lines.Next(line);) {
    if (line.size() > kPickedStart + kPickedLength) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TestMeshReader(Read, Write, Read, IsRead, AsText(data, size));
  return 0;
}
