// A started program without a screen, in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/headless_platform.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

// The tests of windows run both ways: with the picture drawn when an event ends, and at once.
inline bool DrawsAtOnce() { return std::getenv("PELORIUM_DRAW_AT_ONCE") != nullptr; }

class AppTest : public FolderTest {
 protected:
  AppTest() : app(platform, folder()) {
    app.drawsAtOnce = DrawsAtOnce();
    for (const char* name : {"projects", "objs", "objinfo"})
      std::filesystem::create_directory(folder() / name);
    app.Start();
    app.faults.TakeAll();  // the help text is not there
  }

  void Mouse(UserAction action, float x, float y, MouseButton button = MouseButton::Left) {
    app.Deliver({"Form36", "Picture1", action, 0, {}, {button, {}}, x, y});
  }
  void ClickAt(float x, float y, MouseButton button = MouseButton::Left) {
    Mouse(UserAction::MouseDown, x, y, button);
    Mouse(UserAction::MouseUp, x, y, button);
  }
  void PressItem(const std::string& name) { EXPECT_TRUE(app.Deliver({"MDIForm1", name})) << name; }

  // A profile of four points at radius 50, 60, 60, 40, revolved.
  void MakeCup() {
    ClickAt(368, -398);
    ClickAt(378, -368);
    ClickAt(378, -338);
    ClickAt(358, -318);
    PressItem("revolve2");
  }

  HeadlessPlatform platform;
  App app;
};

}  // namespace pelorium
