// The readable report on the faces of the model: corners, edge lengths, areas, perimeters.
#pragma once

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Both user Parts with their sums, or one Part alone. Off faces count too. Lengths are rounded to 2 decimals
// before area and perimeter are taken from them; positions are those of the faces' own corner copies.
void WriteObjectInfoOfAllParts(const ModelStore& model, TextWriter& out);
void WriteObjectInfoOfPart(const ModelStore& model, int part, TextWriter& out);

// The sum of the areas of a Part's faces, in square units.
double EstimatedArea(const ModelStore& model, int part);

}  // namespace pelorium
