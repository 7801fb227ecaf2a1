// Texture coordinates through the windows.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "support/model_text.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/interchange/convert_tuv_files.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/interchange/uvimportexport_uv_files.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class UvWindows : public AppTest {
 protected:
  UvWindows() {
    WriteBytes(file, "v 0 0 0\nv 10 0 0\nv 0 10 0\nvt 0.25 0.5\nvt 1 0\nvt 0 1\nf 1/2/1 2/3/1 3/1/1\n");
    form14.Text13.SetText(file.string());
  }

  std::filesystem::path file = folder() / "objs" / "tri.obj";
  Form14& form14 = app.interchange->form14;
  UvImportExport& uv = app.interchange->uvimportexport;
};

TEST_F(UvWindows, TheNamedFileGivesTheMappingOrTheModel) {
  form14.Command6.Press();
  EXPECT_EQ(app.model.Part(0).vtcount, 3);
  EXPECT_EQ(app.model.Faces(0, 1).vt1, 2);
  EXPECT_EQ(BytesOf(folder() / "vectors1.txt"), " 0.25 0.5\r\n 1 0\r\n 0 1\r\n");
  EXPECT_EQ(app.notices.TakeAll().back(), "3 UV points, 1 UV faces from tri.obj");

  form14.Text13.SetText((folder() / "map.uvs").string());
  form14.uvs.Command4.Press();
  app.view->form51.HScroll4.SetValue(1);
  form14.imports.HScroll2.box.Type("20");
  form14.uvs.Command3.Press();
  EXPECT_EQ(app.model.Part(1).PartName, "map.uvs");
  EXPECT_EQ(PointsText(app.model, 1, 1, 2), "5 10 10 | 20 0 10");
  EXPECT_EQ(FacesText(app.model, 1, 1, 1), "2 3 1");
  EXPECT_EQ(app.view->form51.Label3.caption(), "1faces  points 3");
  EXPECT_EQ(form14.Label1.caption(), "faces 1 points 3");
  form14.Text13.SetText(file.string());
  form14.Command7.Press();
  EXPECT_EQ(app.model.Part(1).PartName, "map.uvs");
  EXPECT_EQ(app.model.Points(1, 1).Z, 200);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(UvWindows, TheOtherWindowAsksFirst) {
  uv.Check6.SetValue(true);
  app.view->form5.Text3.SetText("5");
  platform.QueueAnswer(file.string());
  uv.imports.Command1.Press();
  EXPECT_EQ(PointsText(app.model, 0, 1, 3), "0 0 5 | 10 0 5 | 0 0 15");
  EXPECT_EQ(app.model.Faces(0, 1).vt3, 1);
  EXPECT_EQ(uv.Text13.text(), file.string());

  uv.options.Check3.SetValue(true);
  uv.options.Check5.SetValue(true);
  platform.QueueAnswer((folder() / "objs" / "old.obj").string());
  uv.Command26.Press();
  EXPECT_EQ(
      BytesOf(folder() / "objs" / "old.obj"),
      "mtllib materialfile.mtl\r\nv 0 -5 0\r\nv 10 -5 0\r\nv 0 -15 0\r\nvt 0.25 0.5\r\nvt 1 0\r\nvt 0 1\r\n"
      "vt 1 1\r\nf 1/2 2/3 3/1\r\n");
  EXPECT_TRUE(BytesOf(folder() / "objs" / "materialfile.mtl").starts_with("newmtl material_0\r\n"));

  platform.TakeDialogs();
  uv.uvs.Command4.Press();
  uv.uvs.Command2.Press();
  const auto dialogs = platform.TakeDialogs();
  EXPECT_TRUE(dialogs.at(0).save && !dialogs.at(1).save);
  EXPECT_EQ(dialogs.at(1).folder, folder() / "uvmapperclassicuvs");
  uv.Command26.Press();
  EXPECT_EQ(platform.TakeDialogs().at(0).proposedName, "old.obj");
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(UvWindows, TheWholeMappingHasItsOwnFile) {
  form14.Command6.Press();
  platform.QueueAnswer((folder() / "map").string());
  PressItem("savetex");
  app.model.Part(0).vtcount = 1;
  platform.QueueAnswer((folder() / "map.tex").string());
  PressItem("opentex");
  EXPECT_EQ(app.model.Part(0).vtcount, 3);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(UvWindows, FlatPatternsAreScaledOnce) {
  Convert& convert = app.interchange->convert;
  const auto tuv = folder() / "flat.tuv";
  WriteBytes(tuv, "1,1,1,1\n1 0 0 0.1234567890123456 0 0 1\n");
  convert.HScroll1.box.Type("10");
  platform.QueueAnswer(tuv.string());
  convert.Command1.Press();
  EXPECT_EQ(app.model.Points(0, 2).X, 1.23456789012346);  // by way of 15 digits
  EXPECT_EQ(app.model.Points(0, 3).Y, 10);
  EXPECT_EQ(app.model.Part(0).PartName, tuv.string());
  EXPECT_TRUE(BytesOf(folder() / "3dfacedxf.dxf").ends_with("EOF\r\n"));
  convert.HScroll1.box.Type("big");
  convert.Command3.Press();
  EXPECT_EQ(PointsText(app.model, 0, 1, 3), "0 0 1 | 0 0 1 | 0 0 1");
  platform.QueueAnswer((folder() / "out.tuv").string());
  convert.Command2.Press();
  EXPECT_EQ(BytesOf(folder() / "out.tuv"), " 3 \r\n0 0 1\r\n0 0 1\r\n0 0 1\r\n");
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
