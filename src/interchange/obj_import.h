// Reading a Wavefront OBJ file into a Part: triangles only. Plain files hold bare point numbers, the others
// corners such as "1/2/3".
#pragma once

#include <optional>

#include "base/line_reader.h"
#include "core/model_store.h"
#include "interchange/picked_lines.h"

namespace pelorium {

enum class ObjKind { Plain, WithSlashes };

struct ObjImportSettings {
  ObjKind kind = ObjKind::Plain;
  bool offFacesAsOn = false;            // plain files: "#f" lines are faces, too
  double scale = 1;                     // factor of all coordinates
  std::optional<Vec3> origin = Vec3();  // where point 1 comes to lie; none: the points stay as they are
};

// The first pass: what stands behind "v " and "f ". Faces of a file with slashes keep their whole line.
struct ObjLines {
  PickedLines points{3 * std::size_t{kMaxPoints}};
  PickedLines faces{3 * std::size_t{kMaxFaces + 1}};
};
ObjLines SplitObj(ByteSource& file, ObjKind kind, bool offFacesAsOn);

// The second pass, which overwrites the Part from point 1 and face 1 on; slots behind the new counts keep
// what they hold. The file's second number is the model's Z and the third its Y. Items run on from line to
// line, so that a face of four corners shifts all that follow. Points past 23000 are left out. A fault leaves
// what was read so far, with the Part's header as it was: text that is no number, more than 7700 faces, a
// corner below 0, and in files with slashes one above 23000 (in plain ones it becomes 23000).
void ReadObjLines(ModelStore& model, int part, const ObjLines& lines, const ObjImportSettings& settings);

// Both passes.
void ReadObj(ModelStore& model, int part, ByteSource& file, const ObjImportSettings& settings);

}  // namespace pelorium
