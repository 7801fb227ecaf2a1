// What every import of a file into the current Part has in common.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/line_reader.h"

namespace pelorium {

class App;

// Names the current Part after the file, reads it, lets the ranges of the windows follow the new counts and
// shows the model; the notice says "512 points, 1020 faces from NAME". A file that cannot be opened has named
// the Part all the same. A fault within `read` goes on to the caller's trap with the file's name behind it;
// the ranges and the views are then left as they were.
void ImportFile(App& app, const std::filesystem::path& name,
                const std::function<void(ByteSource& file)>& read);

// What ImportFile does behind the reading.
void FinishImport(App& app, const std::filesystem::path& name);

// "faces 1020 points 512": the current Part, as the windows of imports show it.
std::string ImportedCounts(const App& app);

}  // namespace pelorium
