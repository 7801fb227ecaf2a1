// Bringing the OBJ file of a part into the model: what the libraries and the presets have in common.
#pragma once

#include <filesystem>

namespace pelorium {

class App;

// Replaces the current Part by the file, times `scale`, and leaves it where the file has it. The counts show
// in Precise Edit and in the View Options.
void ImportObjPart(App& app, const std::filesystem::path& file, double scale);

// The counts in Precise Edit, as an import tells them.
void ShowImportedCounts(App& app);

}  // namespace pelorium
