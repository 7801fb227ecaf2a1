// The material library (.mtl) that goes with an OBJ file.
#pragma once

#include <string_view>

#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

inline constexpr int kExportedGroups = 41;  // groups 0..40

// One record a group. The image maps that a group uses are named "mtlN_..." with `imageExtension` (".bmp",
// ".psd"); the images themselves are the user's to save. An empty extension leaves the map lines out.
void WriteMaterialFile(const ModelStore& model, std::string_view imageExtension, TextWriter& out);

}  // namespace pelorium
