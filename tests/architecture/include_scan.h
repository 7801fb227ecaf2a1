// The floors of the sources and the scan that finds an include that climbs.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace pelorium {

// Path under src/ ("core/model_store.cpp") to text.
using Sources = std::map<std::string, std::string>;

Sources ReadSources(const std::filesystem::path& src);

// A line "core/x.cpp includes windows/app.h" for each include that the floors do not allow.
std::vector<std::string> ClimbingIncludes(const Sources& sources);

// A line for each file that pulls in more windows than it can be talking to. Headers count what they include
// through others, sources what they name themselves; windows/app.cpp builds all windows and is left out.
std::vector<std::string> UmbrellaIncludes(const Sources& sources);

}  // namespace pelorium
