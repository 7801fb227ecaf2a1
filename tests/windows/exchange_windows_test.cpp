// Files of other programs through their windows: dialogs, names, ranges, notices.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/interchange/form12_dxf_files.h"
#include "windows/interchange/form14_obj_files.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using ExchangeWindows = AppTest;

// Out through one button and in through the other, at twice the size, into the other Part; then a file that
// is none.
TEST_F(ExchangeWindows, ObjImportNamesMovesAndFollows) {
  MakeCup();
  Form14& window = app.interchange->form14;
  const std::string obj = (folder() / "objs" / "cup größe.obj").string();
  platform.QueueAnswer(obj);
  window.Command26.Press();
  const double width = app.model.Points(0, 1).X - app.model.Points(0, 5).X;
  app.view->form51.HScroll4.SetValue(1);
  SetOrigin(app, {7, 8, 9});
  window.HScroll2.Drag(20);
  app.notices.TakeAll();
  platform.QueueAnswer(obj);
  window.Command25.Press();
  EXPECT_EQ(app.notices.TakeAll(), std::vector<std::string>{"186 points, 221 faces from cup größe.obj"});
  EXPECT_EQ(app.model.Part(1).PartName, obj);
  EXPECT_EQ(app.model.Points(1, 1).X, 7);
  EXPECT_NEAR(app.model.Points(1, 1).X - app.model.Points(1, 5).X, 2 * width, 0.005);
  EXPECT_EQ(app.model.Faces(1, 1).c1Z, 9);
  EXPECT_EQ(PointRangeEnd(app), 186);
  EXPECT_EQ(window.Label1.caption(), "faces 221 points 186");
  EXPECT_TRUE(BytesOf(folder() / "vectors.txt").starts_with("50 -80 0\r\n"));
  EXPECT_TRUE(BytesOf(folder() / "faces.txt").starts_with("1 2 38\r\n"));
  EXPECT_TRUE(app.faults.TakeAll().empty());
  for (const auto& file : {folder(), folder() / "missing.obj"}) {
    platform.QueueAnswer(file.string());
    window.Command1.Press();
  }
  EXPECT_EQ(app.faults.TakeAll().size(), 2u);
  EXPECT_EQ(app.model.Part(1).maxfaces, 221);
  EXPECT_EQ(app.model.Part(1).PartName, (folder() / "missing.obj").string());
  WriteBytes(obj, "v 1 2 3\nv 1.0x 2 3");
  platform.QueueAnswer(obj);
  window.Command25.Press();
  EXPECT_EQ(app.faults.TakeAll(),
            std::vector<std::string>{"Form14.Command25: bad number: \"1.0x\", line 2 in cup größe.obj"});
}

// Out of one Part and into the other, mirrored, by the readers that fit and those that do not.
TEST_F(ExchangeWindows, DxfThereAndBack) {
  MakeCup();
  app.model.Faces(0, 2).group = 3;
  Form12& window = app.interchange->form12;
  window.HScroll4.Drag(3);
  const std::string name = (folder() / "plain").string();
  const auto exported = [&](PushButton& button) {
    platform.QueueAnswer(name);
    button.Press();
    return std::filesystem::file_size(name + ".dxf");
  };
  EXPECT_LT(exported(window.Command1), 400u);  // one face of the group
  EXPECT_GT(exported(window.Command21), 20000u);
  EXPECT_EQ(window.Text6.text(), name + ".dxf");
  app.view->form51.HScroll4.SetValue(1);
  EXPECT_EQ(window.HScroll6.value(), 1);
  window.HScroll5.Drag(-10);
  app.notices.TakeAll();
  window.Command3.Press();
  EXPECT_EQ(app.notices.TakeAll(), std::vector<std::string>{"186 points, 221 faces from plain.dxf"});
  EXPECT_EQ(app.model.Points(1, 1).X, -50);
  EXPECT_EQ(PointRangeEnd(app), 186);
  for (PushButton* button : {&window.Command12, &window.Command13, &window.Command2}) {
    platform.QueueAnswer(name + ".dxf");
    button->Press();
  }
  EXPECT_EQ(app.faults.TakeAll().size(), 2u);  // a mesh is no 3DFACE
  EXPECT_EQ(app.model.Part(1).maxfaces, 221);
  EXPECT_EQ(app.model.Part(1).PartName, name + ".dxf");
}

}  // namespace
}  // namespace pelorium
