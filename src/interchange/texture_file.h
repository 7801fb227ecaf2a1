// The system's own file of the whole mapping (.tex): both Parts' UV points and the numbers of their faces.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Counts in print form and the numbers of the faces, Part by Part; then the UV points of both.
void WriteTextureFile(const ModelStore& model, TextWriter& out);

// Reads it back. Counts are stored as they are read, held in the tables; one beyond 16 bits, a record past
// the end of its table and a text that is no number are faults, with what was read before in place.
void ReadTextureFile(ModelStore& model, std::string_view text);

}  // namespace pelorium
