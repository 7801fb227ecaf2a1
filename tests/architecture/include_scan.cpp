// Scan of the sources' include lines.
#include "architecture/include_scan.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "support/harness.h"

namespace pelorium {

namespace {

constexpr std::size_t kWindowsOneTalksTo = 8;

// What each folder may include besides itself.
const std::map<std::string, std::set<std::string>> kFloors = [] {
  const std::set<std::string> logic = {"base", "graphics", "core"};
  std::set<std::string> windows = {"base",        "graphics",  "core",    "views",    "profiles", "geometry",
                                   "interchange", "facetools", "imaging", "controls", "platform"};
  std::set<std::string> faces = windows;
  faces.insert("windows");
  return std::map<std::string, std::set<std::string>>{
      {"base", {}},
      {"graphics", {"base"}},
      {"core", {"base", "graphics"}},
      {"views", logic},
      {"profiles", logic},
      {"geometry", logic},
      {"interchange", logic},
      {"facetools", logic},
      {"imaging", logic},
      {"controls", {"base", "graphics"}},
      {"platform", {"base", "graphics", "controls"}},
      {"windows", windows},
      {"script", faces},
      {"desktop", faces},
  };
}();

struct Include {
  bool quoted;
  std::string path;
};

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
}

// Takes `word` and the blanks before it off the start of `text`.
bool Takes(std::string_view& text, std::string_view word) {
  SkipBlanks(text);
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

std::vector<Include> IncludesOf(const std::string& text) {
  std::vector<Include> includes;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::string_view rest = line;
    if (!Takes(rest, "#") || !Takes(rest, "include")) continue;
    const bool quoted = Takes(rest, "\"");
    if (!quoted && !Takes(rest, "<")) continue;
    includes.push_back({quoted, std::string(rest.substr(0, rest.find_first_of("\">")))});
  }
  return includes;
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.find('/')); }

// What each room of windows/ may include besides itself and what all of windows/ may.
const std::map<std::string, std::set<std::string>> kRooms = {
    {"shell", {}},
    {"view", {"shell"}},
    {"profiles", {"shell", "view"}},
    {"geometry", {"shell", "view"}},
    {"facetools", {"shell", "view", "geometry"}},
    {"interchange", {"shell", "view"}},
    {"imaging", {"shell", "view"}},
    {"frame", {"shell", "view", "profiles", "geometry", "facetools", "interchange", "imaging"}},
};

// Includes that climb between rooms all the same, each with its reason. None at present; ten at most.
const std::set<std::string> kKnownClimbs = {};

// "geometry" of "windows/geometry/form55.h"; empty for what lies in no room.
std::string RoomOf(const std::string& path) {
  constexpr std::string_view kWindows = "windows/";
  if (!path.starts_with(kWindows)) return {};
  const std::string rest = path.substr(kWindows.size());
  return rest.find('/') == std::string::npos ? "" : FolderOf(rest);
}

bool StaysInItsRooms(const std::string& from, const std::string& to) {
  const std::string fromRoom = RoomOf(from), toRoom = RoomOf(to);
  if (FolderOf(from) != "windows" || FolderOf(to) != "windows") return true;
  const auto room = kRooms.find(fromRoom);
  if (room == kRooms.end() || kRooms.count(toRoom) == 0) return false;
  return fromRoom == toRoom || room->second.count(toRoom) != 0 || kKnownClimbs.count(from + " " + to) != 0;
}

bool IsToolkit(const std::string& header) { return header.starts_with("Q") || header.starts_with("qt"); }

bool IsAllowed(const std::string& path, const Include& include) {
  const std::string from = FolderOf(path);
  if (!include.quoted || include.path.find('/') == std::string::npos) {
    return from == "desktop" || !IsToolkit(include.path);
  }
  const std::string to = FolderOf(include.path);
  const auto floor = kFloors.find(from);
  if (!StaysInItsRooms(path, include.path)) return false;
  return to == from || (floor != kFloors.end() && floor->second.count(to) != 0);
}

// A header that declares a window, rather than what windows share.
bool DeclaresAWindow(const Sources& sources, const std::string& path) {
  const auto source = sources.find(path);
  if (source == sources.end()) return false;
  return source->second.find(": public Window {") != std::string::npos ||
         source->second.find(": public ToolWindow {") != std::string::npos;
}

// The headers that a file names, and with `throughOthers` those that they name in turn.
void CollectHeaders(const Sources& sources, const std::string& path, bool throughOthers,
                    std::set<std::string>& headers) {
  const auto source = sources.find(path);
  if (source == sources.end()) return;
  for (const Include& include : IncludesOf(source->second)) {
    if (headers.insert(include.path).second && throughOthers) {
      CollectHeaders(sources, include.path, true, headers);
    }
  }
}

std::size_t WindowsPulledInBy(const Sources& sources, const std::string& path) {
  std::set<std::string> headers;
  CollectHeaders(sources, path, path.ends_with(".h"), headers);
  headers.erase(path.substr(0, path.rfind('.')) + ".h");  // its own
  return static_cast<std::size_t>(std::count_if(
      headers.begin(), headers.end(), [&](const auto& header) { return DeclaresAWindow(sources, header); }));
}

}  // namespace

Sources ReadSources(const std::filesystem::path& src) {
  Sources sources;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(src)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    sources[entry.path().lexically_relative(src).generic_string()] = BytesOf(entry.path());
  }
  return sources;
}

std::vector<std::string> ClimbingIncludes(const Sources& sources) {
  std::vector<std::string> climbing;
  for (const auto& [path, text] : sources) {
    for (const Include& include : IncludesOf(text)) {
      if (!IsAllowed(path, include)) climbing.push_back(path + " includes " + include.path);
    }
  }
  return climbing;
}

std::vector<std::string> UmbrellaIncludes(const Sources& sources) {
  std::vector<std::string> umbrellas;
  for (const auto& [path, text] : sources) {
    if (path == "windows/frame/app_windows.cpp") continue;
    const std::size_t windows = WindowsPulledInBy(sources, path);
    if (windows > kWindowsOneTalksTo) {
      umbrellas.push_back(path + " pulls in " + std::to_string(windows) + " windows");
    }
  }
  return umbrellas;
}

}  // namespace pelorium
