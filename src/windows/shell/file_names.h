// Asking for file names, the files that names in boxes stand for, and lists of files and folders that fill
// those boxes.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/files.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "platform/platform.h"

namespace pelorium {

class App;

// Runs the dialog. It starts at the file that was chosen last from a dialog of the same folder, else in
// `request.folder` under the application path. A name without an ending gets the request's default extension;
// where a save tells none, the one that its filter names. Empty when the dialog was cancelled.
std::filesystem::path AskFileName(App& app, FileDialogRequest request);

// The file that a name stands for, typed or chosen: a relative one lies under the application path.
std::filesystem::path FileNamed(const App& app, const std::filesystem::path& name);

// The working folder's own name with `tail` set right behind it, and no separator between: a file beside the
// folder.
std::filesystem::path BesideWorkingFolder(const App& app, std::string_view tail);

// The notice of a written file, "`what` name, 143 KB" and `more`; the lists of files follow.
void TellWritten(App& app, const std::filesystem::path& file, const std::string& what,
                 const std::string& more = {});

// What becomes of a file that bears the name already. Where a dialog asked for the name, it asked about that
// too; a name that stands in a box was not asked for, so the old file is kept beside the new one, with a "~"
// behind its name.
enum class OldFile { IsReplaced, IsKept };

// Writing a file and telling of it: the lists of files follow, and the notice says "`what` name, 143 KB".
// SaveFile puts the new file in place of the old one when it is complete; ExportFile writes in place.
void SaveFile(App& app, const std::filesystem::path& name, const FileWriter& write,
              const std::string& what = "saved");
void ExportFile(App& app, const std::filesystem::path& name, const FileWriter& write,
                OldFile old = OldFile::IsReplaced);

// The same for a picture, which replaces the old one when it is complete; the name's ending says the format.
void SavePictureFile(App& app, const std::filesystem::path& name, const Picture& picture);

// Reading a file and telling of it: the notice says what `read` made of its bytes, as "opened 2 Parts, 408
// points". A fault within goes on to the caller's trap, and the notice then says that the file was opened in
// part.
void OpenFile(App& app, const std::filesystem::path& name,
              const std::function<std::string(std::string_view bytes)>& read);

// "2 Parts, 408 points": the user's Parts that hold points.
std::string CountsOfParts(const App& app);

// Choosing a folder fills the list of files; choosing a file puts its path into the box.
void BrowseInto(DirList& folders, FileList& files, TextBox& box);

}  // namespace pelorium
