// Bringing OBJ files into the current Part: what several windows have in common.
#pragma once

#include <filesystem>

#include "interchange/obj_import.h"

namespace pelorium {

class App;

// Names the current Part after the file and replaces it. What was picked out of the file stays in the scratch
// files; windows and views follow. A fault goes on to the caller's trap.
void ImportObj(App& app, const std::filesystem::path& file, const ObjImportSettings& settings);

// The file of a part, plain, times `scale`, left where the file has it. The counts show in Precise Edit, too.
void ImportObjPart(App& app, const std::filesystem::path& file, double scale);

// The counts in Precise Edit, as an import tells them.
void ShowImportedCounts(App& app);

}  // namespace pelorium
