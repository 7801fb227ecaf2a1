// The platform with no screen.
#include "platform/headless_platform.h"

#include <chrono>
#include <utility>

#include "controls/window.h"

namespace pelorium {

std::string HeadlessPlatform::AskFileName(const FileDialogRequest& request) {
  dialogs_.push_back(request);
  if (answers_.empty()) return {};
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

void HeadlessPlatform::SetClipboardPicture(const Picture& picture) {
  picture.Pixels();  // what is drawn by now, and not what its source would give later
  clipboardPicture_ = picture;
}

void HeadlessPlatform::RunModal(Window& window) {
  window.Show();
  if (onModal) onModal(window);
  window.Hide();
}

// The clock stands still, so that what tells of times is the same at every run.
HeadlessPlatform::HeadlessPlatform()
    : clockReading_(
          std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()) {}

}  // namespace pelorium
