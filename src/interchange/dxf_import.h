// Reading DXF files into a Part: 3DFACE entities as triangles or as quads, and a polyface mesh. The lines
// alternate between group codes and values; only few of them are looked at, and the fields must stand in the
// order in which the exports write them.
#pragma once

#include "base/line_reader.h"
#include "core/model_store.h"

namespace pelorium {

// All three overwrite the Part from point 1 and face 1 on, with all coordinates multiplied by `factor`. A
// value that is no number counts as 0. A fault leaves what was read so far, with the Part's header as it was:
// the end of the file before ENDSEC or EOF, a full table, a number too large.

// Each 3DFACE gives a face with three points of its own: 7666 fit. From the end of one entity to the "10" of
// the next at most 17 lines may stand.
void ReadDxfTriangles(ModelStore& model, int part, ByteSource& file, double factor);

// Each 3DFACE gives two faces, corners 1, 2, 3 and 1, 3, 4, with six points of their own.
void ReadDxfQuads(ModelStore& model, int part, ByteSource& file, double factor);

// The first polyline of the file. Counts that do not fit the tables, a field that is missing and a corner
// above 23000 are faults; corners of 0 and below stay as they are, and such faces are not seen.
void ReadDxfMesh(ModelStore& model, int part, ByteSource& file, double factor);

}  // namespace pelorium
