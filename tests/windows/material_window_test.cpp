// The window of the materials.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "controls/boxed_bar.h"
#include "platform/picture_files.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/interchange/material_materials.h"

namespace pelorium {
namespace {

class MaterialWindow : public AppTest {
 protected:
  ScrollBar& Bar(const char* name) { return *dynamic_cast<ScrollBar*>(window.Find(name)); }

  Material& window = app.interchange->material;
};

TEST_F(MaterialWindow, TheFileLiesBesideTheFolderAndComesBack) {
  MaterialRec& last = app.model.MaterialGroups(40);
  window.HScroll1.SetValue(40);
  Bar("HScroll14").SetValue(77);
  window.Command2.Press();
  const std::string file = folder().string() + "materialsettings.txt";
  const std::string bytes = BytesOf(file);
  last.Ns = 0.5, last.TfG = 0.125;
  window.Command1.Press();
  EXPECT_EQ(last.Ns, 0.77);
  EXPECT_EQ(last.TfG, 0.125);
  EXPECT_EQ(Bar("HScroll14").value(), 77);
  EXPECT_TRUE(app.faults.TakeAll().empty());

  WriteBytes(file, " 0.25 \r\n 0.5 \r\nnone");  // the items before the fault count
  window.HScroll1.SetValue(0);
  window.Command1.Press();
  EXPECT_EQ(app.faults.TakeAll(),
            std::vector<std::string>{"material.Command1: bad number: \"none\", line 3"});
  EXPECT_EQ(Bar("HScroll15").value(), 50);
  std::filesystem::remove(file);
  window.Command1.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  WriteBytes(file, bytes);
}

TEST_F(MaterialWindow, MapsAreSavedUnderTheNamesOfTheMaterialFile) {
  Picture& foreground = app.imaging->texture.Picture1.picture();
  Picture& background = app.imaging->texture.Picture5.picture();
  foreground.Dot(3, 4, Rgb(9, 8, 7));
  window.HScroll1.SetValue(7);
  window.Option4.SetValue(true);
  platform.QueueAnswer((folder() / "map").string());
  window.Command4.Press();
  EXPECT_EQ(platform.TakeDialogs().at(0).proposedName, "mtl7_bumpmap.bmp");
  foreground.Clear();
  platform.QueueAnswer((folder() / "map.bmp").string());
  window.Command5.Press();
  EXPECT_EQ(foreground.PixelAt(3, 4), static_cast<int>(Rgb(9, 8, 7)));
  EXPECT_EQ(background.PixelAt(3, 4), static_cast<int>(Rgb(9, 8, 7)));
  SavePicture(Picture(20, 10), folder() / "map.bmp");
  platform.QueueAnswer((folder() / "map.bmp").string());
  window.Command5.Press();
  EXPECT_EQ(foreground.ScaleWidth(), 20);
  EXPECT_EQ(app.imaging->texture.Picture5.height, 14);
  platform.QueueAnswer((folder() / "missing.bmp").string());
  window.Command5.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(background.PixelWidth(), 20);
}

}  // namespace
}  // namespace pelorium
