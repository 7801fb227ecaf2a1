// Create mesh/tesselated: what the transcript of the window cannot show.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects6_mesh.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class MeshWindow : public AppTest {
 protected:
  double HeightOfClick(float x, float y, const char* control = "Picture1", const char* owner = "Form36") {
    UserEvent click{owner, control};
    click.action = UserAction::MouseDown;
    click.x = x, click.y = y;
    app.TessCount = 1;
    app.model.Points(0, 1).Z = -5;
    if (control == std::string("Picture1")) app.view->form51.Option3.SetValue(true);
    app.Deliver(click);
    return app.model.Points(0, 1).Z;
  }
  SpecialEffects6& window = app.geometry->specialeffects6;
};

TEST_F(MeshWindow, AClickTakesTheGrayOfTheImageUnderIt) {
  Picture& image = app.view->form36.Picture2.picture();
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 600), -5);
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 600, "Picture4", "specialeffects6"), 300);
  std::vector<std::uint32_t> pixels = image.Pixels();
  pixels[37 * kImageWidth + 20] = Rgb(90, 120, 150);  // 637 - 600 rows down
  image.SetPixels(pixels);
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 600), 120);
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 601, "Picture4", "specialeffects6"), 0);
  EXPECT_EQ(HeightOfClick(318 - 1, -318), -5);  // outside
  PressItem("clearimage");
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 600), -5);
  window.Check1.SetValue(true);
  window.HScroll2.Drag(-70);
  EXPECT_EQ(HeightOfClick(318 + 20, -318 + 600), -70);
}

TEST_F(MeshWindow, ShowsTheCurrentPartInTheUnitsOfTheView) {
  PressItem("triangleobj");
  window.Command1.Press();
  const Picture& area = window.Picture4.picture();
  EXPECT_EQ(area.ScaleWidth(), app.view->form36.Picture1.picture().ScaleWidth());
  const auto isDrawnAt = [&](float x, float y) {
    app.EndEvent();
    const Pixel p = area.ToPixel(x, y);
    return area.PixelAt(p.x, p.y) != static_cast<int>(area.backColour);
  };
  EXPECT_TRUE(isDrawnAt(318 + 25, -318 + 43.3F));
  window.HScroll1.Drag(1);
  EXPECT_FALSE(isDrawnAt(318 + 25, -318 + 43.3F));
}

TEST_F(MeshWindow, AFullPartAndAnAutomaticRevolveLeaveTheTablesInOrder) {
  app.model.Part(0).maxpoints = kMaxPoints;
  window.Command10.Press();
  window.Command7.Press();
  EXPECT_EQ(app.model.Part(0).maxpoints, kMostTessellated);
  MakeCup();
  app.geometry->revolveprof.Option2.SetValue(true);
  window.HScroll12.box.Type("5");
  window.Command3.Press();
  EXPECT_EQ(app.model.Points(0, 7).X, 40);  // the grid is laid last
  EXPECT_EQ(app.model.Part(0).grid, (LaidGrid{5, 10}));
  window.Command1.Press(MouseButton::Right);
  EXPECT_EQ(app.model.Part(0).maxfaces, 89);
  EXPECT_FALSE(app.model.Part(0).grid.has_value());
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
