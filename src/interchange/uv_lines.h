// Texture coordinates from files of lines: the first pass picks the lines out, the readers of each kind of
// file take their numbers from them. What all kinds share.
//
// A Part's UV points are numbered on their own: u and v of the point records, counted by the Part's vtcount;
// vt1 to vt3 of its faces name them, in as many faces as vtfacecount says.
#pragma once

#include <cstdint>

#include "base/line_reader.h"
#include "core/model_store.h"
#include "interchange/picked_lines.h"

namespace pelorium {

struct UvLines {
  PickedLines points{3 * std::size_t{kMaxPoints}};
  PickedLines faces{3 * std::size_t{kMaxFaces + 1}};
};

// As many of the lines as the table of points has room for.
int UvPointsIn(const UvLines& lines);

// Stores both counts in the Part, held in the tables. Counts beyond 16 bits are a fault, and then neither is
// stored.
void StoreUvCounts(PartHeader& part, const UvLines& lines);

// A point of a flat model.
inline constexpr double kUvModelZ = 10;
void LayUvPoint(ModelStore& model, int part, int point, double u, double v);

// What ends the reading of a map as a model: a corner below 0 is a fault, with the header as it was; then the
// counts, and the faces' own corners.
void FinishUvModel(ModelStore& model, int part, const UvLines& lines);

}  // namespace pelorium
