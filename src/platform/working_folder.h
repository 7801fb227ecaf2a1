// The program's working folder: where its files, projects and models lie.
#pragma once

#include <filesystem>
#include <span>

namespace pelorium {

// The folders under it, by name.
std::span<const char* const> WorkingSubFolders();

// $PELORIUM_HOME when it is set, else the executable's folder when it holds the sub-folders or can be
// written, else
// ~/Pelorium.
std::filesystem::path WorkingFolder();
// The same from what the machine says: the variable's value, the executable's folder, the user's own folder.
std::filesystem::path WorkingFolder(const std::filesystem::path& variable,
                                    const std::filesystem::path& executableFolder,
                                    const std::filesystem::path& userFolder);

// Makes the folder and the sub-folders that are missing, and lays the help text of the executable's folder
// into it when it has none. A library of parts that is empty gets the parts that come with the program. What
// cannot be made is left out: the windows do without.
void CompleteWorkingFolder(const std::filesystem::path& folder);

}  // namespace pelorium
