// The libraries of parts and the presets.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "support/model_text.h"
#include "windows/interchange/dialog_preset_parts.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/interchange/shapes_parts_library.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class PartsLibraryWindow : public AppTest {
 protected:
  PartsLibraryWindow() {
    for (const char* name : {"parts0", "parts1", "parts4"})
      std::filesystem::create_directory(folder() / name);
    app.view->form5.Text5.SetText("10");
    shapes.Load();
  }

  Shapes& shapes = app.interchange->shapes;
};

TEST_F(PartsLibraryWindow, APartIsSavedAHundredthOfItsSize) {
  shapes.HScroll2.SetValue(1);
  shapes.Command1.Press();
  app.model.Points(1, 2).X = 1.234;
  app.model.Points(1, 3).X = 0.0004;
  app.model.Faces(1, 2).onoff = 0;
  shapes.folderButtons[3]->Press();
  shapes.Text14.Type("größe.obj");
  shapes.Check1.SetValue(true);
  shapes.Command8.Press();
  const auto file = folder() / "parts4" / "größe.obj";
  EXPECT_TRUE(BytesOf(file).starts_with("v 1 1 1\r\nv 0.01234 -1 1\r\nv 0 -1 1\r\n"));
  EXPECT_NE(BytesOf(file).find("v -1 1 -1\r\ng group1\r\nf 1 2 3\r\nf 8 7 6\r\n"), std::string::npos);
}

TEST_F(PartsLibraryWindow, BothPartsGoIntoOneFile) {
  shapes.Command1.Press();
  shapes.HScroll2.SetValue(1);
  shapes.Command1.Press();
  shapes.Command7.Press();
  const std::string text = BytesOf(folder() / "parts1" / "Temp.obj");
  EXPECT_NE(text.find("f 8 5 1\r\nf 9 10 11\r\n"), std::string::npos);
  EXPECT_EQ(text.find("f "), text.rfind("v -1 1 -1\r\n") + 11);
}

TEST_F(PartsLibraryWindow, PresetsStayWhereTheirFileHasThem) {
  WriteBytes(folder() / "parts0" / "presetlist.txt", "one\r\n\r\nthree");
  WriteBytes(folder() / "parts0" / "one.obj", "v 1 2 3\nv 4 5 6\nv 7 8 9\nf 1 2 3\n");
  Dialog& dialog = app.interchange->dialog;
  dialog.Load();
  EXPECT_EQ(dialog.List1.items(), (std::vector<std::string>{"one", "", "three"}));
  app.model.Faces(1, 1).group = 7;
  dialog.HScroll1.Drag(1);
  dialog.List1.Pick(0);
  EXPECT_EQ(PointsText(app.model, 1, 1, 2), "1 3 2 | 4 6 5");
  EXPECT_EQ(app.model.Faces(1, 1).group, 0);
  EXPECT_TRUE(app.faults.TakeAll().empty());
  dialog.List1.Pick(1);  // no such file: the Part has its name all the same
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.model.Part(1).PartName, (folder() / "parts0" / ".obj").string());
  EXPECT_EQ(app.model.Part(1).maxpoints, 3);
}

TEST_F(PartsLibraryWindow, ATextPartThatCannotFitLeavesThePart) {
  Shapes2& texts = app.interchange->shapes2;
  shapes.Command1.Press();
  texts.Command21.Press();
  texts.Text14.Type("bad.txt");
  for (const char* counts : {"8 1 7701 1", "-1 1 1 1", "23001 1 1 1", "40000 1 1 1", "8 1"}) {
    WriteBytes(folder() / "parts1" / "bad.txt", std::string("Part Name\nnew\ncounts\n") + counts + "\n");
    texts.Command22.Press();
    EXPECT_EQ(app.faults.TakeAll().size(), 1U) << counts;
    EXPECT_EQ(app.model.Part(0).PartName, "part_0");
    EXPECT_EQ(app.model.Part(0).maxpoints, 8);
  }
}

}  // namespace
}  // namespace pelorium
