// What the targets of both readers of 3DFACE share: what was read is written as triangles, and read as such.
#pragma once

#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "mesh_reader.h"

namespace pelorium {

using DxfReader = void (*)(ModelStore&, int, ByteSource&, double);

template <DxfReader reader>
void ReadDxfText(ModelStore& model, std::string_view text) {
  StringSource file(text);
  reader(model, kPart, file, 1);
}

template <DxfReader reader>
int RunDxfTarget(const std::uint8_t* data, std::size_t size) {
  const auto write = [](const ModelStore& model, TextWriter& out) {
    WriteDxfTriangles(model, kPart, 10, std::nullopt, out);
  };
  TestMeshReader(
      ReadDxfText<reader>, write, ReadDxfText<ReadDxfTriangles>, [](const std::string&) { return true; },
      AsText(data, size));
  return 0;
}

}  // namespace pelorium
