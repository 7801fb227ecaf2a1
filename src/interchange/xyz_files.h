// Plain files of positions: one number a line.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// X, Y, Z of all profile points, unrounded: point by point, and of each point profile by profile.
void WriteProfilePositions(const ModelStore& model, TextWriter& out);

// Reads them back; a text that ends early keeps what came. Counts of the profiles are left alone.
void ReadProfilePositions(ModelStore& model, std::string_view text);

// The corner copies of each face of the Part that is on: nine numbers a face.
void WriteSeparateFaces(const ModelStore& model, int part, TextWriter& out);

// Reads such numbers as faces on points of their own, face k on the points 3k - 2, 3k - 1, 3k, and replaces
// the Part. At most 7666 faces: more points do not fit. What is left over of a last triple or face is
// dropped.
void ReadSeparateFaces(ModelStore& model, int part, std::string_view text);

}  // namespace pelorium
