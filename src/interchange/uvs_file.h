// The text of a UV mapper: "vt U V" lines, and "f n1 n2 n3" lines that name them, in the order of the mesh's
// faces. Other lines are passed over.
#pragma once

#include "base/text_writer.h"
#include "interchange/uv_lines.h"

namespace pelorium {

// The Part's UV points and the numbers of its mapped faces, in general form.
void WriteUvs(const ModelStore& model, int part, TextWriter& out);

// The mesh seen from the top as its own mapping: X with 3 decimals and Y with 2, then the corners of the
// faces that are on. Faces that are off are left out, so that those behind them move up.
void WriteTopViewAsUvs(const ModelStore& model, int part, TextWriter& out);

// The first pass. Of a line 32 characters are kept, from the third on.
UvLines SplitUvs(ByteSource& file);

// Fills the Part's mapping: the k-th "f" line is that of the k-th face, whatever that face is. The points are
// chosen (PointMark 1). Points past 23000 are left out and numbers from 23001 on become 23000; one beyond 16
// bits, a text that is no number and a face past 7700 are faults, with the counts stored and what was read
// before.
void ReadUvs(ModelStore& model, int part, const UvLines& lines);

// Makes the map itself the Part: a flat model at Z 10, with X and Y times `scale`. A fault leaves the header
// as it was.
void ReadUvsAsModel(ModelStore& model, int part, const UvLines& lines, double scale);

}  // namespace pelorium
