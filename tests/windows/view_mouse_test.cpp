// The mouse on the view in each of its modes.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

// A Part of four points seen from above, its origin at 318, -318 of the view.
class ViewMouseTest : public AppTest {
 protected:
  ViewMouseTest() {
    app.model.Part(0).maxpoints = 4;
    PlacePoint(1, {110, 47, 22});
    PlacePoint(2, {-40, 5, 60});
    PlacePoint(3, {0, 0, 0});
    PlacePoint(4, {7, 8, 9});
    app.view->form5.HScroll25.SetMax(4);
    app.view->form5.HScroll25.SetValue(4);
    app.model.PointMark(0, 4) = 0;
    app.view->form51.Option5.SetValue(true);
  }

  void PlacePoint(int number, const Vec3& at) { CopyPosition(app.model.Points(0, number), at); }
  Vec3 PointAt(int number) const {
    const PointRec& point = app.model.Points(0, number);
    return {point.X, point.Y, point.Z};
  }
  std::string Marks() const {
    std::string marks;
    for (int i = 1; i <= 4; ++i) {
      EXPECT_EQ(app.model.PointMark(0, i), app.model.Points(0, i).onoff) << i;
      marks += app.model.PointMark(0, i) == 1 ? '1' : '0';
    }
    return marks;
  }
  void SwitchAll(int on) {
    for (int i = 1; i <= 4; ++i) app.model.Points(0, i).onoff = app.model.PointMark(0, i) = on;
  }

  void Drag(float x0, float y0, float x1, float y1, MouseButton button = MouseButton::Left,
            bool shift = false) {
    for (auto [action, x, y] : {std::tuple{UserAction::MouseDown, x0, y0},
                                {UserAction::MouseMove, x1, y1},
                                {UserAction::MouseUp, x1, y1}}) {
      app.Deliver({"Form36", "Picture1", action, 0, {}, {button, {shift, false, false}}, x, y});
    }
  }
};

TEST_F(ViewMouseTest, ThePositionIsKeptInWholeUnits) {
  app.view->form36.Option7.Press({});
  Drag(100.5F, -99.5F, 101, -100);  // held as 100, -100
  EXPECT_EQ(PointAt(3), (Vec3{0.1, 0, 0}));
  Drag(0, 0, 90000, 0);
  Drag(90000, 0, 32767, 0);  // stops at 16 bits
  EXPECT_EQ(PointAt(3).X, 0.1 + 9000);
}

TEST_F(ViewMouseTest, TheTriViewWorksInThePictureUnderTheMouse) {
  app.view->form51.Option16.SetValue(true);
  app.view->form36.Option7.Press({});
  Drag(510, -320, 520, -340);  // Side, 200 to the right: Z across, Y up
  EXPECT_EQ(PointAt(3), (Vec3{0, -2, 1}));
  Drag(320, -110, 330, -130, MouseButton::Right);  // Front, 200 above: Y out
  EXPECT_EQ(PointAt(3), (Vec3{0, -4, 1}));
  app.view->form36.Option10.Press({});
  ClickAt(318 + 200 + 22, -318 + 47, MouseButton::Right);  // point 1 in the Side picture
  EXPECT_EQ(app.model.PointMark(0, 1), 0);
}

TEST_F(ViewMouseTest, CirclePick) {
  SwitchAll(1);
  app.view->form36.Option10.Press({});
  app.geometry->specialeffects5.HScroll6.SetValue(50);
  ClickAt(318 - 10, -318 + 45, MouseButton::Right);  // 30, 40 from point 2
  EXPECT_EQ(Marks(), "1000");
  EXPECT_EQ(app.view->form36.Label16.caption(), "4");
  EXPECT_EQ(app.view->form36.Shape5.left, 258);
  EXPECT_EQ(app.view->form36.Shape5.top, -223);
  EXPECT_EQ(app.view->form36.Shape5.width, 100);
  app.view->form51.Option2.SetValue(true);  // Front: point 2 stands at -40, 60
  ClickAt(318 - 40, -318 + 60);
  EXPECT_EQ(Marks(), "1100");
  app.view->form51.Option4.SetValue(true);
  ClickAt(318, -318);
  EXPECT_EQ(Marks(), "1100");  // not in the oblique view
  Drag(1, -1, 1, -1, MouseButton::Left, true);
  EXPECT_EQ(Marks(), "1111");
  Drag(1, -1, 1, -1, MouseButton::Right, true);
  EXPECT_EQ(Marks(), "0000");
}

TEST_F(ViewMouseTest, TheRectanglePicksWhileItGrows) {
  SwitchAll(0);
  app.view->form36.Option10.Press({});
  app.geometry->specialeffects5.Option3.SetValue(true);
  Drag(318 + 7, -318 + 8, 318 - 40, -318);  // up to point 2's edge
  EXPECT_EQ(Marks(), "0111");
  EXPECT_EQ(app.view->form36.Shape5.left, 278);
  EXPECT_EQ(app.view->form36.Shape5.height, 8);
  ASSERT_EQ(app.view->form36.Picture1.overlay().size(), 1U);
  app.view->form51.Check17.SetValue(false);
  EXPECT_TRUE(app.view->form36.Picture1.overlay().empty());
}

// With Shift the press switches the range; letting Shift go, the rectangle reaches from that press.
TEST_F(ViewMouseTest, AShiftPressSetsTheCornerToo) {
  app.view->form36.Option10.Press({});
  app.geometry->specialeffects5.Option3.SetValue(true);
  const auto at = [this](UserAction action, float x, float y, bool shift) {
    app.Deliver({"Form36", "Picture1", action, 0, {}, {MouseButton::Left, {shift, false, false}}, x, y});
  };
  at(UserAction::MouseDown, 300, -300, true);
  SwitchAll(0);
  at(UserAction::MouseMove, 330, -320, false);
  EXPECT_EQ(Marks(), "0011");
  EXPECT_EQ(app.view->form36.Shape5.left, 300);
}

TEST_F(ViewMouseTest, TheLengthShowsWithoutItsLine) {
  app.view->form51.Option1.SetValue(true);
  app.view->form51.Check15.SetValue(false);
  app.model.Profile(0).count = 1;
  app.Deliver({"Form36", "Picture1", UserAction::MouseMove, 0, {}, {}, 318 + 3, -318 + 4});
  EXPECT_EQ(app.view->form36.Label13.caption(), "5");
  EXPECT_TRUE(app.view->form36.Picture1.overlay().empty());
}

TEST_F(ViewMouseTest, TheBrushHasAPlaneInEveryView) {
  std::vector<std::pair<Axis, Axis>> planes;
  app.view->form36.mouse.onBrush = [&](const BrushTouch& touch) {
    planes.push_back({touch.axes.across, touch.axes.up});
  };
  for (OptionButton* view : {&app.view->form51.Option5, &app.view->form51.Option3, &app.view->form51.Option2,
                             &app.view->form51.Option6, &app.view->form51.Option4}) {
    view->SetValue(true);
    Drag(100, -100, 110, -110);
  }
  using enum Axis;
  EXPECT_EQ(planes, (std::vector<std::pair<Axis, Axis>>{{X, Y}, {X, Y}, {X, Z}, {Z, Y}, {X, Z}}));
}

TEST_F(ViewMouseTest, APlainClickTellsTheNearestPoint) {
  app.geometry->specialeffects5.Option3.SetValue(true);
  ClickAt(318 + 3, -318 + 4);
  EXPECT_EQ(app.view->form36.Label16.caption(), "3");
  ClickAt(318 + 60, -318);  // further than 8 pixels from all
  EXPECT_EQ(app.view->form36.Label16.caption(), "3");
}

TEST_F(ViewMouseTest, TesselatedClicksAddPoints) {
  app.view->form51.Option3.SetValue(true);
  ClickAt(400.7F, -300.2F, MouseButton::Right);
  EXPECT_EQ(PointAt(1), (Vec3{82, 17, 22}));
  EXPECT_EQ(app.TessCount, 2);
  EXPECT_EQ(app.model.Part(0).maxpoints, 1);
  EXPECT_EQ(PointRangeEnd(app), 1);
  app.TessCount = 3850;
  ClickAt(318, -318);
  EXPECT_EQ(app.TessCount, 1);
  EXPECT_EQ(PointRangeEnd(app), 3850);
}

TEST_F(ViewMouseTest, ASinglePointTakesItsMirrorImageAlong) {
  app.view->form5.Check2.SetValue(true);
  app.view->form5.HScroll5.SetValue(2);
  app.view->form5.Text5.SetText("5");
  app.model.PointMark(0, 2) = app.model.PointMark(0, 3) = 0;
  app.view->form36.Option7.Press({});
  Drag(100, -100, 110, -100);
  EXPECT_EQ(PointAt(1), (Vec3{111, 47, 22}));
  EXPECT_EQ(PointAt(3), (Vec3{-101, 47, 22}));
  app.model.PointMark(0, 2) = 1;  // two chosen: none
  Drag(100, -100, 110, -100);
  EXPECT_EQ(PointAt(3).X, -101);
}

TEST_F(ViewMouseTest, MovePointMovesTheNearestLayer) {
  app.view->form51.Option1.SetValue(true);
  ClickAt(388, -408);
  ClickAt(400, -300);
  app.model.ProfilePts(0, 0).Y = 12.5;
  app.view->form36.Option1.Press({});
  app.view->form5.Check2.SetValue(true);
  app.view->form5.HScroll5.SetValue(5);
  Drag(389, -405, 418.5F, -218);
  EXPECT_EQ(app.model.ProfilePts(0, 0).X, 100);
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 100);
  EXPECT_EQ(app.model.ProfilePts(0, 0).Y, 12);  // the elevation, half to even
  EXPECT_EQ(app.model.ProfilePts(5, 0).X, -100);
  EXPECT_EQ(app.view->form36.Label16.caption(), "0");
  EXPECT_EQ(app.model.Profile(0).count, 2);  // nothing is drawn
}

TEST_F(ViewMouseTest, AFaultLetsGoOfTheDrag) {
  app.view->form5.HScroll25.SetMax(30000);
  app.view->form5.HScroll25.SetValue(30000);
  app.EndEvent();
  app.faults.TakeAll();
  app.view->form36.Option7.Press({});
  Drag(100, -100, 120, -100);
  const auto faults = app.faults.TakeAll();
  ASSERT_FALSE(faults.empty());
  EXPECT_TRUE(faults[0].starts_with("Form36.Picture1: ")) << faults[0];
  Mouse(UserAction::MouseMove, 300, -100);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(ViewMouseTest, TheBackgroundImageLiesBehindTheModel) {
  Picture image(2, 1);
  image.SetPixels({Rgb(200, 100, 31), Rgb(1, 2, 3)});
  platform.SetClipboardPicture(image);
  PressItem("getitclip");
  const auto view = [this](int x) { return app.view->form36.Picture1.picture().PixelAt(x, 0); };
  EXPECT_EQ(app.view->form36.Picture2.picture().PixelAt(1, 0), static_cast<int>(Rgb(1, 2, 3)));
  EXPECT_EQ(app.view->form36.Picture2.picture().PixelAt(2, 0), 0);
  app.view->form51.Check1.SetValue(false);
  EXPECT_EQ(view(0), static_cast<int>(Rgb(200, 100, 31)));
  ClickAt(0, 0);
  EXPECT_EQ(app.view->form36.Label53.caption(), "200 100 31  grey 110");
  app.view->form36.HScroll2.SetValue(10);
  EXPECT_EQ(view(0), static_cast<int>(Rgb(64, 64, 64)));
  EXPECT_EQ(view(10), static_cast<int>(Rgb(200, 100, 31)));
  PressItem("senittoboard");
  EXPECT_EQ(platform.ClipboardPicture()->PixelAt(10, 0), static_cast<int>(Rgb(200, 100, 31)));
  PressItem("clearimage");
  EXPECT_EQ(view(10), static_cast<int>(Rgb(64, 64, 64)));
  EXPECT_EQ(app.view->form36.Picture2.picture().PixelAt(0, 0), static_cast<int>(Rgb(200, 100, 31)));
}

}  // namespace
}  // namespace pelorium
