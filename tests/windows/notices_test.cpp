// Notices: what file commands did, and every fault.
#include "app_fixture.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using Lines = std::vector<std::string>;

class NoticesTest : public AppTest {
 protected:
  NoticesTest() { app.notices.TakeAll(); }
  void Press(PushButton& button, const std::string& answer = {}) {
    if (!answer.empty()) platform.QueueAnswer(answer);
    UserEvent event{button.owner().name(), button.name(), UserAction::Press};
    EXPECT_TRUE(app.Deliver(event));
  }
};

TEST_F(NoticesTest, TellWhatFilesBecame) {
  MakeCup();
  Press(app.frame->form31.Command14, "cup.prj");
  const std::string kilobytes =
      std::to_string((std::filesystem::file_size(folder() / "cup.prj") + 512) / 1024) + " KB";
  Press(app.frame->form31.Command15, "cup.prj");
  Press(app.interchange->form14.Command26, "objs/cup.obj");
  PressItem("memsave");
  Lines notices = app.notices.TakeAll();
  ASSERT_EQ(notices.size(), 4u);
  EXPECT_EQ(notices[0], "saved cup.prj, " + kilobytes);
  EXPECT_EQ(notices[1], "opened 1 Part, 186 points");
  EXPECT_TRUE(notices[2].starts_with("exported cup.obj, ")) << notices[2];
  EXPECT_TRUE(notices[3].starts_with("saved qsave.txt, ")) << notices[3];
  EXPECT_TRUE(std::filesystem::exists(folder() / "objs" / "cup.obj_materialfile.mtl"));
  EXPECT_EQ(app.interchange->form14.File1.items(), (Lines{"cup.obj"}));  // the lists are read again
}

TEST_F(NoticesTest, TellOfFaultsAndOfWhatEndedEarly) {
  NoticeKind kind{};
  app.notices.onNotice = [&](const std::string&, NoticeKind given) { kind = given; };
  WriteBytes(folder() / "cut.prj", " 0  1 \r\n 0  1 \r\nx");
  Press(app.frame->form31.Command15, "cut.prj");
  EXPECT_EQ(app.notices.TakeAll(),
            (Lines{"opened in part: cut.prj", "Form31.Command15: bad number: \"x\", line 3"}));
  EXPECT_EQ(kind, NoticeKind::Fault);
  app.frame->form31.Text2.SetText("absent.txt");  // names in boxes lie in the working folder
  Press(app.frame->form31.Command4);
  const Lines notices = app.notices.TakeAll();
  ASSERT_EQ(notices.size(), 1u);
  EXPECT_NE(notices[0].find((folder() / "absent.txt").string()), std::string::npos) << notices[0];
}

// After a fault the picture shows what was left, whether the handler asked for it or not.
TEST_F(NoticesTest, AFaultIsFollowedByADrawing) {
  app.view->form36.Picture1.picture().Clear();
  const int blank = app.view->form36.Picture1.picture().PixelAt(0, 0);
  Press(app.frame->form31.Command7);
  EXPECT_NE(app.view->form36.Picture1.picture().PixelAt(0, 0), blank);
}

// Exit hides a few windows by name first, then the others in the program's order.
TEST_F(NoticesTest, ExitHidesWindowsInItsOrder) {
  struct Order : ControlListener {
    void ControlChanged(Control&) override {}
    void WindowChanged(Window& window) override {
      if (!window.visible()) names.push_back(window.name());
    }
    Lines names;
  } order;
  app.host.listener = &order;
  PressItem("exiter");
  app.host.listener = nullptr;
  ASSERT_GE(order.names.size(), 5u);
  EXPECT_EQ(Lines(order.names.begin(), order.names.begin() + 5),
            (Lines{"editbyface", "Form12", "Form14", "frmSplash", "MDIForm1"}));
  EXPECT_EQ(order.names.back(), "Form36");
}

}  // namespace
}  // namespace pelorium
