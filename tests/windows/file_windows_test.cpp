// Saving, opening and exporting through the windows.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class FileWindows : public AppTest {
 protected:
  std::filesystem::path Project() const { return folder() / "projects" / "cup \"1\" größe.prj"; }

  void SaveTo(const std::filesystem::path& path) {
    platform.QueueAnswer(path.string());
    PressItem("saveproj");
  }
  void OpenFrom(const std::filesystem::path& path) {
    platform.QueueAnswer(path.string());
    PressItem("openproj");
  }
};

TEST_F(FileWindows, SaveOpenSaveGivesTheSameBytesAndTheRangesFollow) {
  MakeCup();
  SaveTo(Project());
  EXPECT_EQ(app.frame->form31.Text1.text(), Project().string());
  const std::string bytes = BytesOf(Project());

  App other(platform, folder());
  other.Start();
  platform.QueueAnswer(Project().string());
  other.frame->form31.Command15.Press();
  EXPECT_EQ(PointRangeEnd(other), 186);
  EXPECT_EQ(FaceRangeEnd(other), 221);
  EXPECT_EQ(other.view->form51.Label3.caption(), "221faces  points 186");
  EXPECT_EQ(other.view->form51.Label17.caption(), "4");
  platform.QueueAnswer((folder() / "again.prj").string());
  other.frame->form31.Command14.Press();
  EXPECT_EQ(BytesOf(folder() / "again.prj"), bytes);
}

TEST_F(FileWindows, ANameWithoutAnEndingGetsOne) {
  SaveTo(folder() / "plain");
  EXPECT_TRUE(std::filesystem::exists(folder() / "plain.prj"));
}

TEST_F(FileWindows, AFailedSaveCostsNothing) {
  SaveTo(Project());
  const std::string bytes = BytesOf(Project());
  MakeCup();
  SaveTo(Project() / "a file is no folder.prj");
  SaveTo(folder() / "no such folder" / "x.prj");
  EXPECT_EQ(app.faults.TakeAll().size(), 2U);
  EXPECT_EQ(BytesOf(Project()), bytes);
}

TEST_F(FileWindows, ABadProjectEndsQuietlyAndTheNextCommandWorks) {
  MakeCup();
  const auto bad = folder() / "bad.prj";
  for (const char* text : {"", " 5  1  3  1 \r\n0 0 x", " 99999  1 ", "nan"}) {
    WriteBytes(bad, text);
    OpenFrom(bad);
    EXPECT_EQ(app.faults.TakeAll().size(), 1U) << text;
    EXPECT_TRUE(platform.TakeMessages().empty());
    PressItem("revolve2");
    EXPECT_EQ(app.model.Part(0).maxfaces, 221);
  }
  OpenFrom(folder() / "missing.prj");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
}

TEST_F(FileWindows, OpeningRunsNoAutomaticRevolve) {
  MakeCup();
  SaveTo(Project());
  app.model.Profile(0).count = 0;
  app.geometry->revolveprof.Option2.SetValue(true);
  app.model.Points(0, 1).X = -1;
  OpenFrom(Project());
  EXPECT_EQ(app.model.Points(0, 1).X, 50);
  EXPECT_EQ(app.model.Part(0).maxpoints, 186);
}

TEST_F(FileWindows, QuickSaveAndGet) {
  PressItem("restoreit");  // nothing there yet
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  MakeCup();
  app.model.Profile(0).sectionCount = 2;
  app.model.Part(0).Sections = 20;
  PressItem("memsave");
  app.model.Part(0).maxfaces = 0;
  app.geometry->revolveprof.Option2.SetValue(true);
  PressItem("restoreit");
  EXPECT_EQ(app.model.Part(0).maxfaces, 221);
  EXPECT_EQ(app.model.Part(0).Sections, 20);
  EXPECT_EQ(app.model.Profile(0).sectionCount, 4);
  EXPECT_EQ(app.geometry->revolveprof.HScroll10.value(), 4);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(FileWindows, ObjExportWritesItsMaterialFileBeside) {
  MakeCup();
  app.interchange->form14.Check3.SetValue(true);
  const auto obj = folder() / "objs" / "cup.obj";
  platform.QueueAnswer(obj.string());
  app.interchange->form14.Command26.Press();
  EXPECT_EQ(app.interchange->form14.Text13.text(), obj.string());
  const std::string text = BytesOf(obj);
  EXPECT_TRUE(text.starts_with("mtllib " + obj.string() + "_materialfile.mtl\r\nv 50 -80 0\r\n"));
  EXPECT_TRUE(BytesOf(obj.string() + "_materialfile.mtl").starts_with("newmtl material_0\r\n"));
}

TEST_F(FileWindows, PlainFilesThroughTheirButtons) {
  MakeCup();
  const std::string path = (folder() / "faces.txt").string();
  app.frame->form31.Text1.SetText(path);
  app.frame->form31.Command8.Press();
  app.frame->form31.Text2.SetText(path);
  app.view->form51.HScroll4.SetValue(1);
  app.frame->form31.Command3.Press();
  EXPECT_EQ(app.model.Part(1).maxfaces, 221);
  EXPECT_EQ(app.model.Part(1).maxpoints, 663);
  EXPECT_EQ(PointRangeEnd(app), 663);
  app.frame->form31.Command1.Press();  // the Part's own text
  app.frame->form31.Command4.Press();
  EXPECT_EQ(app.model.Part(1).maxfaces, 221);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
