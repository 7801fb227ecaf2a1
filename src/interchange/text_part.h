// One Part as a readable text that describes itself: name, counts, points, faces.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Positions are rounded to 2 decimals.
void WriteTextPart(const ModelStore& model, int part, TextWriter& out);

// Replaces the Part. The counts in the text decide the loops: a text that does not agree with them raises a
// fault at its first wrong item, with the records read by then in the Part. Counts that the tables cannot
// hold leave the Part as it was.
void ReadTextPart(ModelStore& model, int part, std::string_view text);

}  // namespace pelorium
