// Asking for file names, and lists of files and folders that fill name boxes.
#pragma once

#include <filesystem>
#include <string>

#include "controls/lists.h"
#include "controls/text_box.h"
#include "platform/platform.h"

namespace pelorium {

class App;

// Runs the dialog, which starts in `request.folder` under the application path; a save makes that folder. A
// name without an ending gets the request's default extension. Empty when the dialog was cancelled.
std::filesystem::path AskFileName(App& app, FileDialogRequest request);

// Choosing a folder fills the list of files; choosing a file puts its path into the box.
void BrowseInto(DirList& folders, FileList& files, TextBox& box);

}  // namespace pelorium
