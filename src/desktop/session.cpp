// One run of the program with its face.
#include "desktop/session.h"

#include <utility>

#include "windows/frame/open_file.h"

namespace pelorium {

Session::Session(Journal journal, const std::filesystem::path& applicationPath)
    : journal_(std::move(journal)),
      platform_(journal_),
      app_(platform_, applicationPath),
      dispatcher_(app_, journal_),
      face_(app_, dispatcher_) {
  platform_.runDialog = [this](const std::function<void()>& dialog) {
    face_.Refresh();
    dispatcher_.RunNested(dialog);
  };
  platform_.arrangeWindows = [this] { face_.frame().PutWindowsInOrder(); };
  face_.frame().onFileDropped = [this](const std::filesystem::path& path) { Open(path); };
  platform_.runModal = [this](Window& window) { face_.RunModal(window); };
}

void Session::Open(const std::filesystem::path& path) {
  OpenFile(app_, path,
           {[this](const std::filesystem::path& answer) { platform_.AnswerNextDialog(answer.string()); },
            [this](const UserEvent& event) { dispatcher_.Deliver(event); }});
  platform_.ForgetAnswer();
}

void Session::OpenGiven(const std::vector<std::filesystem::path>& paths) {
  if (paths.empty()) return;
  if (!app_.started) face_.splash().GoOn();
  for (const std::filesystem::path& path : paths) Open(path);
}

}  // namespace pelorium
