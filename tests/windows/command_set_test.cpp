// The command set, and the end.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/frame/command_table.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/mdi_form1.h"
#include "windows/view/command_row.h"

namespace pelorium {
namespace {

using CommandSet = AppTest;

TEST_F(CommandSet, EveryMenuItemHasItsHeadAndEveryButtonItsItem) {
  EXPECT_EQ(app.frame->mdiForm1.controls().size(), MenuCommands().size());
  for (const MenuCommand& command : MenuCommands()) {
    const auto* item = dynamic_cast<const MenuItem*>(app.frame->mdiForm1.Find(command.name));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->isTopLevel(), command.menu.empty()) << command.name;
  }
  for (const CommandButton& button : CommandButtons()) {
    EXPECT_TRUE(button.menuItem.empty() || app.frame->mdiForm1.Find(button.menuItem) != nullptr)
        << button.caption;
  }
}

// The number of the Part is held to 1, which shows once the typing is over.
TEST_F(CommandSet, ClosingAWindowEndsTheTyping) {
  app.Deliver({"Form51", "Text3", UserAction::Type, 0, "7"});
  EXPECT_EQ(AsText(app.FindWindow("Form51")->Find("Text3")->Value()), "7");
  app.Deliver({"Form51", "", UserAction::CloseWindow});
  EXPECT_EQ(AsText(app.FindWindow("Form51")->Find("Text3")->Value()), "1");
}

// Exit hides a few windows by name first, then the others in the program's order.
TEST_F(CommandSet, ExitHidesWindowsInItsOrder) {
  struct Order : ControlListener {
    void ControlChanged(Control&) override {}
    void WindowChanged(Window& window) override {
      if (!window.visible()) names.push_back(window.name());
    }
    std::vector<std::string> names;
  } order;
  app.host.listener = &order;
  PressItem("exiter");
  app.host.listener = nullptr;
  ASSERT_GE(order.names.size(), 5u);
  EXPECT_EQ(std::vector<std::string>(order.names.begin(), order.names.begin() + 5),
            (std::vector<std::string>{"Form47", "editbyface", "Form12", "Form14", "frmSplash"}));
  EXPECT_EQ(order.names.back(), "Form36");
}

}  // namespace
}  // namespace pelorium
