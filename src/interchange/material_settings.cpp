// The file of all materials.
#include "interchange/material_settings.h"

#include "base/item_reader.h"
#include "core/material_items.h"

namespace pelorium {

void WriteMaterialSettings(const ModelStore& model, TextWriter& out) {
  for (int group = 0; group < kSavedGroups; ++group) WriteMaterialItems(model.MaterialGroups(group), out);
}

void ReadMaterialSettings(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  for (int group = 0; group < kSavedGroups; ++group) ReadMaterialItems(model.MaterialGroups(group), in);
}

}  // namespace pelorium
