// The text of an unwrapping program (.tuv): four items, then for each triangle an item and three pairs U, V.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Rewrites the text as a DXF file of 3DFACE entities at Z 1, with all numbers times `scale`, which the import
// of triangles reads. Items that are passed over may be anything. A triangle that is cut short raises a
// fault; more triangles than fit into a Part end the writing behind the first that does not.
void WriteTuvAsDxf(std::string_view tuv, double scale, TextWriter& out);

// A line with the number 3, then the positions of the corners of the Part's first face, as the face itself
// holds them: X, Y and Z of each on a line.
void WriteTuvTriangle(const ModelStore& model, int part, TextWriter& out);

}  // namespace pelorium
