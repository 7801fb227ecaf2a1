// Fuzz target of the reader of 3DFACE as triangles.
#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "mesh_reader.h"

using namespace pelorium;

namespace {

void Read(ModelStore& model, std::string_view text) {
  StringSource file(text);
  ReadDxfTriangles(model, kPart, file, 1);
}

void Write(const ModelStore& model, TextWriter& out) {
  WriteDxfTriangles(model, kPart, 10, std::nullopt, out);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TestMeshReader(
      Read, Write, Read, [](const std::string&) { return true; }, AsText(data, size));
  return 0;
}
