// The command set, and the end.
#include <gtest/gtest.h>

#include <set>

#include "app_fixture.h"
#include "windows/frame/command_table.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/mdi_form1.h"
#include "windows/frame/open_file.h"
#include "windows/shell/event_text.h"
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

// Every item of the two menu trees, with what it lacks.
TEST_F(CommandSet, ItemsAreAtWorkButThoseThatLackSomething) {
  std::set<std::string> idle;
  const auto lacking = [this, &idle] {
    std::string all;
    for (const char* window : {"MDIForm1", "texture"}) {
      for (const Control* control : app.FindWindow(window)->controls()) {
        const auto* item = dynamic_cast<const MenuItem*>(control);
        if (item == nullptr) continue;
        EXPECT_TRUE(item->enabled()) << item->name();
        EXPECT_EQ(item->children().empty(), !item->toolTip().empty()) << item->name();
        if (item->children().empty() && !item->onClick) idle.insert(item->name());
        const std::string lack = item->lacks ? item->lacks() : "";
        if (!lack.empty()) all += item->name() + ": " + lack + "\n";
      }
    }
    return all;
  };
  EXPECT_EQ(lacking(),
            "getitclip: no picture on the clipboard\npastepart: nothing copied yet\n"
            "pasteintome: nothing copied yet\ngetclkip: no picture on the clipboard\n"
            "getclip2nd: no picture on the clipboard\n");
  EXPECT_EQ(idle, (std::set<std::string>{"transfer2to3", "transfer3to2", "transferoneto3"}));
  platform.SetClipboardPicture(Picture(2, 2));
  MakeCup();
  PressItem("copypart");
  EXPECT_EQ(lacking(), "");
  PressItem("erase");  // with what was copied
  EXPECT_EQ(lacking(), "pastepart: nothing copied yet\npasteintome: nothing copied yet\n");
}

// The number of the Part is held to 1, which shows once the typing is over.
TEST_F(CommandSet, ClosingAWindowEndsTheTyping) {
  app.Deliver({"Form51", "Text3", UserAction::Type, 0, "7"});
  EXPECT_EQ(AsText(app.FindWindow("Form51")->Find("Text3")->Value()), "7");
  app.Deliver({"Form51", "", UserAction::CloseWindow});
  EXPECT_EQ(AsText(app.FindWindow("Form51")->Find("Text3")->Value()), "1");
}

TEST_F(CommandSet, EachKindOfFileIsOpenedByItsButton) {
  const std::string face = "0\nSECTION\n2\nENTITIES\n0\n3DFACE\n12\n2\n22\n0\n32\n0\n13\n";
  struct Case {
    const char *name, *button;
    std::string text = {};
    const char* box = nullptr;
  };
  const std::vector<Case> cases = {
      {"a.prj", "Form31.Command15"},
      {"a.obj", "Form14.Command25", "f 1 2 3\n"},
      {"b.obj", "Form14.Command1", "f 1/1 2/2 3/3\n"},
      {"a.dxf", "Form12.Command12", face + "2\n23\n0\n33\n0\n"},
      {"b.dxf", "Form12.Command13", face + "9\n23\n0\n33\n0\n"},
      {"c.dxf", "Form12.Command2", "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n"},
      {"a.uvs", "Form14.Command2", "", "Form14.Text13"},
      {"a.tex", "Form31.Command11"},
      {"a.tuv", "convert.Command1"},
      {"a.txt", "shapes2.Command22", "Part Name\n", "shapes2.Text11"},
      {"b.txt", "frmsaveprof.Command2", " 1 2 3\n"},
      {"a.bmp", "Form47.Command3"},
  };
  for (const Case& c : cases) {
    const std::filesystem::path file = folder() / c.name;
    WriteBytes(file, c.text);
    std::vector<std::string> done;
    OpenFile(app, file,
             {[&](const std::filesystem::path& answer) { done.push_back("answer " + answer.string()); },
              [&](const UserEvent& event) { done.push_back(ScriptLine(event)); }});
    const std::string first = c.box == nullptr
                                  ? "answer " + file.string()
                                  : "type " + std::string(c.box) + " " + ScriptWord(file.string());
    EXPECT_EQ(done, (std::vector<std::string>{first, "press " + std::string(c.button)})) << c.name;
  }
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
