// Texture coordinates from the "vt" and "f" lines of an OBJ file.
#pragma once

#include "interchange/uv_lines.h"

namespace pelorium {

// How many numbers a "vt" line holds. Of three the third is passed over.
enum class VtNumbers { Two, Three };

// The first pass: what stands behind "vt", and the whole lines of the faces.
UvLines SplitObjUvs(ByteSource& file);

// Fills the Part's mapping. Of a corner such as "12/5/7" the second number counts: it is looked for behind a
// "/" at most 12 characters after the corner's start, and is 0 where there is none or nothing stands behind
// it. Points past 23000 are left out; a number beyond 16 bits, a text of a "vt" line that is no number and a
// face past 7700 are faults, with the counts stored and what was read before.
void ReadObjUvs(ModelStore& model, int part, const UvLines& lines, VtNumbers perLine);

// Makes the map itself the Part: a flat model at Z 10, then all of it times `scale`. Corners from 23001 on
// become 23000. A fault leaves the header as it was.
void ReadObjUvsAsModel(ModelStore& model, int part, const UvLines& lines, VtNumbers perLine, double scale);

}  // namespace pelorium
