// What lies over the pictures while the mouse moves.
#include "app_fixture.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/unfold_flat_pattern.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class Overlays : public AppTest {
 protected:
  Form36& view = app.view->form36;
  const std::vector<OverlayShape>& shapes = view.Picture1.overlay();
};

TEST_F(Overlays, TheNextLineIsOverThePictureNotInIt) {
  ClickAt(318, -318);
  Mouse(UserAction::MouseMove, 321, -314);
  ASSERT_EQ(shapes.size(), 1U);
  const int before = view.Picture1.picture().PixelAt(400, 100);
  Mouse(UserAction::MouseMove, 500, -50);
  EXPECT_EQ(view.Picture1.picture().PixelAt(400, 100), before);
  app.view->form51.Check15.SetValue(false);
  EXPECT_TRUE(shapes.empty());
  Mouse(UserAction::MouseMove, 321, -314);
  EXPECT_TRUE(shapes.empty());
}

TEST_F(Overlays, PickShapesLieWhereTheyPick) {
  app.view->form51.Option5.SetValue(true);
  view.Option10.Press({});
  app.geometry->specialeffects5.HScroll6.SetValue(50);
  ClickAt(308, -273, MouseButton::Right);
  EXPECT_EQ(view.Shape5.left, 258);
  EXPECT_EQ(view.Shape5.top, -223);
  EXPECT_EQ(view.Shape5.width, 100);
  app.geometry->specialeffects5.Option3.SetValue(true);
  Mouse(UserAction::MouseDown, 325, -310);
  Mouse(UserAction::MouseMove, 278, -318);
  EXPECT_EQ(view.Shape5.left, 278);
  EXPECT_EQ(view.Shape5.height, 8);
  ASSERT_EQ(shapes.size(), 1U);
  app.view->form51.Check17.SetValue(false);
  EXPECT_TRUE(shapes.empty());
}

// Without Edit obj.
TEST_F(Overlays, ADragOnASmallPictureShowsItsWay) {
  app.geometry->specialeffects5.Check3.SetValue(false);
  const auto at = [this](UserAction action, float x, float y) {
    app.Deliver({"specialeffects5", "Picture1", action, 0, "", {}, x, y});
  };
  at(UserAction::MouseDown, 100, 50);
  at(UserAction::MouseMove, 130, 90);
  at(UserAction::MouseMove, 120, 80);
  const auto& way = app.geometry->specialeffects5.Picture1.overlay();
  ASSERT_EQ(way.size(), 1u);
  EXPECT_EQ(way[0].x0, 100);
  EXPECT_EQ(way[0].y1, 80);
  at(UserAction::MouseUp, 120, 80);
  EXPECT_TRUE(way.empty());
}

// Two triangles, until they are laid.
TEST_F(Overlays, APairOfFacesShowsWhereItWillLie) {
  MakeCup();
  PressItem("unfoldme");
  Unfold& unfold = app.facetools->unfold;
  unfold.Command1.Press();
  EXPECT_EQ(shapes.size(), 6U);
  unfold.Check1.SetValue(true);
  app.Deliver({"unfold", "VScroll2", UserAction::Drag, 3});
  EXPECT_EQ(shapes.size(), 6U);
  app.Deliver({"unfold", "Command2", UserAction::Press});
  EXPECT_TRUE(shapes.empty());
}

TEST_F(Overlays, AZoomStaysBetweenOneUnitAndEightThousand) {
  const auto width = [this] { return view.Picture1.measures().ScaleWidth(); };
  for (int i = 0; i < 40; ++i) view.Command12.Press(MouseButton::Left);
  EXPECT_GE(width(), 1);
  for (int i = 0; i < 80; ++i) view.Command12.Press(MouseButton::Right);
  EXPECT_LE(width(), 8000);
}

}  // namespace
}  // namespace pelorium
