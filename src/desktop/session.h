// One run of the program with its face: everything from the journal to the frame, built in the right order.
#pragma once

#include <filesystem>
#include <vector>

#include "desktop/dispatcher.h"
#include "desktop/face.h"
#include "desktop/journal.h"
#include "desktop/qt_platform.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

class Session {
 public:
  // `applicationPath` is the program's working folder.
  Session(Journal journal, const std::filesystem::path& applicationPath);

  App& app() { return app_; }
  Face& face() { return face_; }
  // Opens a file by its kind, as a person would by hand.
  void Open(const std::filesystem::path& path);
  // The files that the program was started with: the frame comes by itself.
  void OpenGiven(const std::vector<std::filesystem::path>& paths);

 private:
  Journal journal_;
  QtPlatform platform_;
  App app_;
  Dispatcher dispatcher_;
  Face face_;
};

}  // namespace pelorium
