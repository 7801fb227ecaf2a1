// How a file that was dropped on the program is opened: through the same buttons that a person would press.
#pragma once

#include <filesystem>
#include <functional>

#include "controls/user_event.h"

namespace pelorium {

class App;

// What a face does for it.
struct OpeningFace {
  std::function<void(const std::filesystem::path&)> answerNextDialog;
  std::function<void(const UserEvent&)> deliver;
};

// Presses the button that opens files of that kind, with the path as its dialog's answer or, where the button
// reads a box, typed into it. A file of no known kind is refused with a notice.
void OpenFile(App& app, const std::filesystem::path& path, const OpeningFace& face);

}  // namespace pelorium
