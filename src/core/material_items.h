// The numbers of a material as the project file and the file of all materials hold them: 24 lines.
#pragma once

#include "base/item_reader.h"
#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

inline constexpr int kSavedGroups = 41;  // groups 0..40 are in files; 41 is not

// One number a line, in print form. The filter stands there by its red, three times: its green and blue are
// in no file, nor is the name of the group among these lines.
void WriteMaterialItems(const MaterialRec& material, TextWriter& out);

// Reads them back. A fault leaves the items before it in the record.
void ReadMaterialItems(MaterialRec& material, ItemReader& in);

}  // namespace pelorium
