// Writing the model as a Wavefront OBJ file: Parts 0 and 1, triangles only.
#pragma once

#include <string>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// The older dialect mirrors the depth axis, "v X -Z Y", which keeps the turn of the faces for right-handed
// readers, and calls its groups "part0" and "bone_3" by their numbers.
enum class ObjDialect { Present, Older };

struct ObjExportSettings {
  std::string
      materialLibrary;        // the name in the "mtllib" line and with it the "usemtl" lines; empty for none
  bool groupPerPart = false;  // a "g" line with the Part's name
  bool groupPerFace = false;  // a "g" line with the group's name before every face
  bool textureCoordinates = false;
  bool scaledDown = false;  // coordinates times 0.001, with 4 decimals instead of 3
  ObjDialect dialect = ObjDialect::Present;
};

// The file's second number is the model's Z and the third its Y. Faces are numbered over both Parts; the UV
// numbers are raised by the count of points too, so those of Part 1 fit only when Part 0 has as many UV
// points as points. Faces that are off stay in the file as "#f" comments; a face with another state than on
// and off gets no line.
void WriteObj(const ModelStore& model, const ObjExportSettings& settings, TextWriter& out);

}  // namespace pelorium
