// Fuzz target of the reader of polyface meshes.
#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "mesh_reader.h"

using namespace pelorium;

namespace {

void Read(ModelStore& model, std::string_view text) {
  StringSource file(text);
  ReadDxfMesh(model, kPart, file, 1);
}

void Write(const ModelStore& model, TextWriter& out) { WriteDxfMesh(model, kPart, out); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TestMeshReader(
      Read, Write, Read, [](const std::string&) { return true; }, AsText(data, size));
  return 0;
}
