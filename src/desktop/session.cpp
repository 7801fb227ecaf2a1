// One run of the program with its face.
#include "desktop/session.h"

#include <utility>

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
  platform_.runModal = [this](Window& window) { face_.RunModal(window); };
}

}  // namespace pelorium
