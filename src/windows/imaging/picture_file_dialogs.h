// The dialogs of picture files.
#pragma once

#include <filesystem>

namespace pelorium {

class App;

// Both start in the folder "images" of the program. Empty when the dialog was cancelled.
std::filesystem::path AskPictureToOpen(App& app);
// A name that does not end in ".bmp" gets it.
std::filesystem::path AskBmpToSave(App& app);

// What the name boxes show before a file was chosen, and which files are listed.
inline constexpr const char* kSampleName = "c:\\program files\\Pelorium\\sample.bmp";
inline constexpr const char* kPicturePattern = "*.bmp;*.ico;*.gif;*.jpg";

}  // namespace pelorium
