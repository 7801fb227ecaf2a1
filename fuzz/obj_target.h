// What the targets of both readers of OBJ files share.
#pragma once

#include "interchange/obj_export.h"
#include "interchange/obj_import.h"
#include "mesh_reader.h"

namespace pelorium {

// No line of the text is longer than what is read of it.
inline bool ObjIsReadWhole(const std::string& text) {
  StringSource source(text);
  LineReader lines(source);
  for (std::string_view line; lines.Next(line);) {
    if (line.size() > kPickedStart + kPickedLength) return false;
  }
  return true;
}

template <ObjKind kind>
int RunObjTarget(const std::uint8_t* data, std::size_t size) {
  const auto read = [](ModelStore& model, std::string_view text) {
    StringSource file(text);
    ObjImportSettings settings;
    settings.kind = kind;
    settings.offFacesAsOn = true;
    settings.origin.reset();
    ReadObj(model, kPart, file, settings);
  };
  const auto write = [](const ModelStore& model, TextWriter& out) {
    ObjExportSettings settings;
    settings.textureCoordinates = kind == ObjKind::WithSlashes;
    WriteObj(model, settings, out);
  };
  TestMeshReader(read, write, read, ObjIsReadWhole, AsText(data, size));
  return 0;
}

}  // namespace pelorium
