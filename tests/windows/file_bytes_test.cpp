// Files through the windows: their bytes, and bad ones.
#include "app_fixture.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using Lines = std::vector<std::string>;

class FileBytes : public AppTest {
 protected:
  void Answer(const std::filesystem::path& path, const char* item) {
    platform.QueueAnswer(path.string());
    PressItem(item);
  }
  void Answer(const std::filesystem::path& path, PushButton& button) {
    platform.QueueAnswer(path.string());
    app.Deliver({button.owner().name(), button.name(), UserAction::Press});
  }
  // Every item of a file of profiles is `item`.
  void OpenProfilesOf(const std::string& item) {
    std::string text;
    for (int i = 0; i < 37 * (21 + 37 * 26); ++i) text += item + "\r\n";
    WriteBytes(project, text);
    Answer(project, "openprof");
  }

  const std::filesystem::path project = folder() / "projects" / "cup \"1\" größe.prj";
};

TEST_F(FileBytes, SaveOpenSaveGivesTheSame) {
  MakeCup();
  Answer(project, "saveproj");
  const std::string bytes = BytesOf(project);
  App other(platform, folder());
  other.Start();
  platform.QueueAnswer(project.string());
  other.frame->form31.Command15.Press();
  platform.QueueAnswer((folder() / "again.prj").string());
  other.frame->form31.Command14.Press();
  EXPECT_EQ(BytesOf(folder() / "again.prj"), bytes);
}

TEST_F(FileBytes, AFailedSaveCostsNothing) {
  Answer(project, "saveproj");
  const std::string bytes = BytesOf(project);
  MakeCup();
  Answer(project / "a file is no folder.prj", "saveproj");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(BytesOf(project), bytes);
}

TEST_F(FileBytes, ABadProjectEndsQuietlyAndTheNextCommandWorks) {
  MakeCup();
  for (const char* text : {"", " 5  1  3  1 \r\n0 0 x", " 99999  1 ", "nan"}) {
    WriteBytes(project, text);
    Answer(project, "openproj");
    EXPECT_EQ(app.faults.TakeAll().size(), 1U) << text;
    EXPECT_TRUE(platform.TakeMessages().empty());
    PressItem("revolve2");
    EXPECT_EQ(app.model.Part(0).maxfaces, 221);
  }
  NoticeKind kind{};
  app.notices.onNotice = [&](const std::string&, NoticeKind given) { kind = given; };
  WriteBytes(folder() / "cut.prj", " 0  1 \r\n 0  1 \r\nx");
  app.notices.TakeAll();
  Answer("cut.prj", app.frame->form31.Command15);
  EXPECT_EQ(app.notices.TakeAll(),
            (Lines{"opened in part: cut.prj", "Form31.Command15: bad number: \"x\", line 3"}));
  EXPECT_EQ(kind, NoticeKind::Fault);
}

TEST_F(FileBytes, OfObjFiles) {
  MakeCup();
  Form14& window = app.interchange->form14;
  window.options.Check3.SetValue(true);
  const std::string obj = (folder() / "objs" / "cup größe.obj").string();
  Answer(obj, window.Command26);
  EXPECT_EQ(window.Text13.text(), obj);
  EXPECT_EQ(window.File1.items(), Lines{"cup größe.obj"});  // the list is read again
  EXPECT_TRUE(BytesOf(obj).starts_with("mtllib " + obj + "_materialfile.mtl\r\nv 50 -80 0\r\n"));
  EXPECT_TRUE(BytesOf(obj + "_materialfile.mtl").starts_with("newmtl material_0\r\n"));
  Answer(obj, window.imports.Command25);
  EXPECT_TRUE(BytesOf(folder() / "vectors.txt").starts_with("50 -80 0\r\n"));
  EXPECT_TRUE(BytesOf(folder() / "faces.txt").starts_with("1 2 38\r\n"));
  WriteBytes(obj, "v 1 2 3\nv 1.0x 2 3");
  app.faults.TakeAll();
  Answer(obj, window.imports.Command25);
  EXPECT_EQ(app.faults.TakeAll(), Lines{"Form14.Command25: bad number: \"1.0x\", line 2 in cup größe.obj"});
}

TEST_F(FileBytes, OfProfiles) {
  app.geometry->revolveprof.Option2.SetValue(true);  // an open file revolves nothing
  OpenProfilesOf("20");
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 20);
  EXPECT_EQ(app.model.Profile(0).layerCount, 20);
  EXPECT_EQ(app.view->form51.Label17.caption(), "20");
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  OpenProfilesOf("90");  // more sections than the bar holds
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 61);
  EXPECT_EQ(app.model.Profile(1).sectionCount, 90);
  EXPECT_EQ(app.model.Profile(0).count, 36);
  EXPECT_TRUE(app.faults.TakeAll().empty());
  WriteBytes(project, "1 2 3 4\r\n");  // what was read stays
  Answer(project, "openprof");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.model.Profile(0).genMoveX, 4);
  EXPECT_EQ(app.geometry->revolveprof.HScroll31.box.text(), "4");
}

// After a fault the picture shows what was left, whether the handler asked for it or not.
TEST_F(FileBytes, AFaultIsFollowedByADrawing) {
  Picture& view = app.view->form36.Picture1.picture();
  view.Clear();
  const int blank = view.PixelAt(0, 0);
  app.Deliver({"Form31", "Command7", UserAction::Press});
  EXPECT_NE(view.PixelAt(0, 0), blank);
}

}  // namespace
}  // namespace pelorium
