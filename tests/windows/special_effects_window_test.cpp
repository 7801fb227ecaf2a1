// Special Effects: what its buttons take from the other windows, and the brush on the view.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "platform/picture_files.h"
#include "support/model_text.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

// Six chosen points and a face over the last three.
class SpecialEffectsWindow : public AppTest {
 protected:
  SpecialEffectsWindow() {
    PutPoints(app.model, 0, 1, {{10, 0, 0}, {20, 0, 0}, {30, 0, 0}, {40, 20, 5}, {40, 20, 5}, {50, 600, 5}});
    app.model.Part(0).maxpoints = 6;
    app.model.Part(0).maxfaces = 1;
    FaceRec& face = app.model.Faces(0, 1);
    face.corner1pt = 4, face.corner2pt = 5, face.corner3pt = 6;
    for (int i = 1; i <= 6; ++i) app.model.PointMark(0, i) = 1;
    app.model.Part(0).grid = {3, 2};
    FollowCounts(app);
  }

  std::string Points(int last = 6) { return PointsText(app.model, 0, 1, last); }
  void Press(const char* button, MouseButton side = MouseButton::Left) {
    EXPECT_TRUE(app.Deliver({"specialeffects1", button, UserAction::Press, 0, {}, {side, {}}})) << button;
  }
  void Drag(const char* bar, double value) {
    app.Deliver({"specialeffects1", bar, UserAction::Drag, value, {}, {}});
  }
  void Type(const char* box, const char* text) {
    app.Deliver({"specialeffects1", box, UserAction::Type, 0, text, {}});
  }

  SpecialEffects1& window = app.geometry->specialeffects1;
};

constexpr MouseButton kRight = MouseButton::Right;

TEST_F(SpecialEffectsWindow, AMoldShapesTheChosenLayers) {
  Picture image(60, 640);
  image.backColour = Rgb(50, 100, 60);  // gray 70
  image.Clear();
  SavePicture(image, folder() / "picture3.bmp");
  Press("Command35");  // there is no such file
  EXPECT_EQ(app.faults.TakeAll().size(), 1u);
  Press("Command36");
  const Picture& mold = app.view->form36.Picture2.picture();
  EXPECT_EQ(mold.PixelWidth(), kImageWidth);
  EXPECT_EQ(mold.PixelAt(59, 639), static_cast<int>(Rgb(50, 100, 60)));
  EXPECT_EQ(mold.PixelAt(60, 639), 0);

  app.view->form5.HScroll5.SetValue(2);
  Drag("HScroll23", 1);
  Drag("HScroll22", 1);
  EXPECT_EQ(app.view->form5.HScroll20.value(), 3);
  EXPECT_EQ(app.view->form5.HScroll25.value(), 4);
  app.view->form5.Text5.SetText("10");
  Type("Text27", "1.5");
  Press("Command29");
  EXPECT_EQ(Points(), "10 0 0 | 20 0 0 | 40 0 0 | 55 20 5 | 40 20 5 | 50 600 5");
  EXPECT_EQ(app.model.Faces(0, 1).c1X, 55);  // the faces follow
  EXPECT_EQ(ViewPan(app).x, 0);
  EXPECT_EQ(ViewPan(app).y, -637);

  Drag("HScroll16", 71);  // the picture is darker
  Press("Command21", kRight);
  Press("Command22", kRight);  // down by 249 - 71
  EXPECT_EQ(window.HScroll15.value(), 71);
  EXPECT_EQ(window.HScroll16.value(), 0);
  Press("Command25");  // one layer is its own difference of 0
  Drag("HScroll22", 2);
  Type("Text4", ".5");
  Press("Command15", kRight);
  EXPECT_EQ(Points(), "10 0 0 | 20 0 0 | 40 0 -35 | 55 20 -35 | 40 20 -35 | 50 600 -35");
  EXPECT_TRUE(app.model.Part(0).grid);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(SpecialEffectsWindow, TheBrushPushesInThePlaneOfTheView) {
  window.Check8.SetValue(true);
  window.HScroll12.SetValue(2);  // a tenth of the width: 96.4 units
  app.view->form51.Option2.SetValue(true);
  app.view->form5.Text9.SetText("0");
  const auto stroke = [this](MouseButton side) {
    const auto [panX, panY] = ViewPan(app);
    Mouse(UserAction::MouseDown, static_cast<float>(panX), static_cast<float>(panY), side);
    Mouse(UserAction::MouseMove, static_cast<float>(panX + 10), static_cast<float>(panY + 6), side);
    Mouse(UserAction::MouseUp, 0, 0, side);
  };
  app.view->form36.Picture1.picture().SetScale(200, -200);  // a radius of 20
  stroke(MouseButton::Left);  // the brush stands at 10, 0, 6: the shares of the square distances are .09,
                              // .34, 1.09
  EXPECT_EQ(Points(3), "18.281 0 4.9686 | 24.356 0 2.6136 | 30 0 0");
  window.Option2.SetValue(true);  // through all Z
  PutPoints(app.model, 0, 1, {{10, 0, 90}, {20, 0, 90}});
  stroke(kRight);
  EXPECT_EQ(Points(3), "10 6 90 | 20 3.375 90 | 30 0 0");
  app.view->form51.Option1.SetValue(true);
  app.view->form51.Check8.SetValue(false);
  stroke(MouseButton::Left);
  EXPECT_EQ(Points(3), "10 6 90 | 20 3.375 90 | 30 0 0");
}

TEST_F(SpecialEffectsWindow, CopiesCountAndWeld) {
  Drag("HScroll26", 1);
  Press("Command6");
  EXPECT_EQ(app.model.Part(1).maxpoints, 6);
  EXPECT_EQ(app.view->form5.HScroll25.max(), 6);
  app.view->form5.HScroll20.SetValue(4);
  Press("Command9", kRight);  // over itself, at the offsets of 0
  EXPECT_EQ(app.view->form5.HScroll20.value(), 1);
  EXPECT_FALSE(app.model.Part(0).grid);
  Drag("HScroll1", 0);
  EXPECT_EQ(window.HScroll7.box.text(), "6");
  EXPECT_EQ(window.HScroll8.value(), 1);
  Press("Command17");
  EXPECT_EQ(app.model.Part(1).maxpoints, 9);
  EXPECT_EQ(FacesText(app.model, 1, 1, 2), "4 5 6 | 7 8 9");
  Drag("HScroll31", 1);
  EXPECT_EQ(CurrentPart(app), 1);
  Press("Command13");
  EXPECT_EQ(FacesText(app.model, 1, 1, 2), "4 4 6 | 4 4 6");
  EXPECT_EQ(app.model.PointMark(1, 9), 0);
  EXPECT_EQ(window.Label8.caption(), "Evaluating Pts");
  Drag("HScroll5", 1);
  Type("Text8", "left wing");
  Press("Command12");
  EXPECT_EQ(app.model.Part(1).PartName, "left wing");
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
