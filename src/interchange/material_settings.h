// All materials in one file, "materialsettings.txt": the numbers of the groups 0 to 40, one a line.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Everything of a material but its name and the green and blue of its filter.
void WriteMaterialSettings(const ModelStore& model, TextWriter& out);

// Reads them back. At a fault the items before it are in the groups. What follows the last item is not looked
// at.
void ReadMaterialSettings(ModelStore& model, std::string_view text);

}  // namespace pelorium
