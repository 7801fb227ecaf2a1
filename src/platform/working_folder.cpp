// The working folder.
#include "platform/working_folder.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <string>

namespace pelorium {

namespace {

constexpr const char* kHelpFile = "help.rtf";
constexpr const char* kStarterFolder = "starter";  // beside the program: a folder for each library with parts

constexpr std::array kSubFolders = {
    "projects",
    "textures",
    "objs",
    "images",
    "profiles",
    "profinfo",
    "objinfo",
    "notes",
    "dxf",
    "dxfmesh",
    "dxfquad",
    "dxfpoints",
    "dxfwireframe",
    "dxfsolids",
    "parts0",
    "parts1",
    "parts2",
    "parts3",
    "parts4",
    "parts5",
    "parts6",
    "parts7",
    "parts8",
    "parts9",
    "parts10",
    "faces",
    "patterns",
    "ultimateunwraptuvs",
    "uvmapperclassicuvs",
};

// Of the machine's environment; empty when it is not set.
std::filesystem::path Environment(const char* variable) {
  const char* value = std::getenv(variable);
  return value == nullptr ? std::filesystem::path() : std::filesystem::path(value);
}

// The working directory where the machine does not tell.
std::filesystem::path ExecutableFolder() {
  char name[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", name, sizeof name);
  if (length <= 0) return std::filesystem::current_path();
  return std::filesystem::path(std::string(name, static_cast<std::size_t>(length))).parent_path();
}

bool HoldsSubFolders(const std::filesystem::path& folder) {
  return std::all_of(kSubFolders.begin(), kSubFolders.end(), [&folder](const char* name) {
    std::error_code ignored;
    return std::filesystem::is_directory(folder / name, ignored);
  });
}

// A library that holds nothing yet gets the parts that come with the program.
void FillLibraries(const std::filesystem::path& folder, const std::filesystem::path& starter) {
  std::error_code error, ignored;
  for (std::filesystem::directory_iterator at(starter, error), end; !error && at != end;
       at.increment(error)) {
    const std::filesystem::path library = folder / at->path().filename();
    if (!at->is_directory(ignored) || !std::filesystem::is_empty(library, ignored)) continue;
    std::filesystem::copy(at->path(), library, std::filesystem::copy_options::recursive, ignored);
  }
}

}  // namespace

std::span<const char* const> WorkingSubFolders() { return kSubFolders; }

std::filesystem::path WorkingFolder(const std::filesystem::path& variable,
                                    const std::filesystem::path& executableFolder,
                                    const std::filesystem::path& userFolder) {
  if (!variable.empty()) return variable;
  const bool serves = HoldsSubFolders(executableFolder) || access(executableFolder.c_str(), W_OK) == 0;
  return serves || userFolder.empty() ? executableFolder : userFolder / "Pelorium";
}

std::filesystem::path WorkingFolder() {
  return WorkingFolder(Environment("PELORIUM_HOME"), ExecutableFolder(), Environment("HOME"));
}

void CompleteWorkingFolder(const std::filesystem::path& folder) {
  std::error_code ignored;
  for (const char* name : kSubFolders) std::filesystem::create_directories(folder / name, ignored);
  const std::filesystem::path help = ExecutableFolder() / kHelpFile;
  if (!std::filesystem::exists(folder / kHelpFile, ignored)) {
    std::filesystem::copy_file(help, folder / kHelpFile, ignored);
  }
  FillLibraries(folder, ExecutableFolder() / kStarterFolder);
}

}  // namespace pelorium
