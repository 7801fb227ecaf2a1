// The view under the mouse, the View Options and the shared ranges.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using ViewWindow = AppTest;

TEST_F(ViewWindow, ClicksDrawTheProfile) {
  ClickAt(388.75F, -408.25F);
  ClickAt(400, -300);
  EXPECT_EQ(app.model.ProfilePts(0, 0).X, 70);   // floor(388.75) - 318
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, -91);  // floor(-408.25) + 318
  EXPECT_EQ(app.model.Profile(0).count, 2);
  EXPECT_EQ(app.view->form51.Label17.caption(), "2");
  EXPECT_EQ(app.view->form51.HScroll6.value(), 2);
  EXPECT_EQ(app.profiles->formulas.HScroll27.value(), 2);
  EXPECT_EQ(app.view->form36.Label16.caption(), "1");
  ClickAt(1, -1, MouseButton::Right);
  EXPECT_EQ(app.model.Profile(0).count, 2);
  EXPECT_EQ(app.model.ProfilePts(2, 0).X, -317);
}

TEST_F(ViewWindow, SubViewsDrawInTheirPlane) {
  app.profiles->formulas.HScroll28.SetValue(44);
  app.profiles->formulas.view.Option6.SetValue(true);
  ClickAt(328, -298);
  EXPECT_EQ(app.model.ProfilePts(0, 0).X, 44);
  EXPECT_EQ(app.model.ProfilePts(0, 0).Y, 20);
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 10);
  app.profiles->formulas.view.Option7.SetValue(true);
  ClickAt(328, -298);
  EXPECT_EQ(app.model.Profile(0).count, 1);  // nothing is drawn in the oblique view
  app.profiles->formulas.view.Option4.SetValue(true);
  app.view->form51.Check8.SetValue(false);
  ClickAt(328, -298);
  EXPECT_EQ(app.model.Profile(0).count, 1);
}

TEST_F(ViewWindow, LiveLabelsFollowTheMouse) {
  ClickAt(318, -318);
  Mouse(UserAction::MouseMove, 321, -314);
  EXPECT_EQ(app.view->form36.Label4.caption(), "3");
  EXPECT_EQ(app.view->form36.Label5.caption(), "4");
  EXPECT_EQ(app.view->form36.Label13.caption(), "5");
  ASSERT_EQ(app.view->form36.Picture1.overlay().size(), 1U);
  const int before = app.view->form36.Picture1.picture().PixelAt(400, 100);
  Mouse(UserAction::MouseMove, 500, -50);
  EXPECT_EQ(app.view->form36.Picture1.picture().PixelAt(400, 100),
            before);  // the line is over the picture, not in it
  app.view->form51.Check15.SetValue(false);
  EXPECT_TRUE(app.view->form36.Picture1.overlay().empty());
}

TEST_F(ViewWindow, ZoomChangesScalesAndPans) {
  app.view->form36.Command12.Press(MouseButton::Left);
  EXPECT_EQ(app.view->form36.Picture1.measures().ScaleWidth(), 723);
  EXPECT_EQ(app.view->form36.VScroll1.value(), -238);
  EXPECT_EQ(app.view->form36.HScroll1.value(), 398);
  app.view->form51.Command26.Press(MouseButton::Right);
  EXPECT_EQ(app.view->form36.Picture1.measures().ScaleWidth(), 903.75);
  for (int i = 0; i < 40; ++i) app.view->form36.Command12.Press(MouseButton::Left);
  EXPECT_GE(app.view->form36.Picture1.measures().ScaleWidth(), 1);
  for (int i = 0; i < 80; ++i) app.view->form36.Command12.Press(MouseButton::Right);
  EXPECT_LE(app.view->form36.Picture1.measures().ScaleWidth(), 8000);
}

TEST_F(ViewWindow, ResizeKeepsUnitsPerPixelAndTheCorner) {
  app.Deliver({"Form36", "Picture1", UserAction::Resize, 0, "", {}, 0, 0, 482, 1274});
  const Picture& picture = app.view->form36.Picture1.picture();
  EXPECT_EQ(picture.PixelWidth(), 482);
  EXPECT_EQ(picture.ScaleWidth(), 482);
  EXPECT_EQ(picture.ScaleHeight(), -1274);
  EXPECT_EQ(app.view->form36.HScroll1.value(), 318);
  app.Deliver({"Form36", "Picture1", UserAction::Resize, 0, "", {}, 0, 0, 0, 5});
  EXPECT_EQ(picture.PixelHeight(), 1274);
}

TEST_F(ViewWindow, FacesStayBehindWithCheck6) {
  MakeCup();
  const double before = app.model.Faces(0, 1).c1X;
  app.model.Points(0, 1).X = 999;
  app.view->form51.Check6.SetValue(true);
  SyncFaceCorners(app);
  EXPECT_EQ(app.model.Faces(0, 1).c1X, before);
  app.view->form51.Check6.SetValue(false);
  SyncFaceCorners(app);
  EXPECT_EQ(app.model.Faces(0, 1).c1X, 999);
}

TEST_F(ViewWindow, AFaultWhileDrawingEndsTheDrawingOnly) {
  MakeCup();
  app.model.Faces(0, 3).group = 99;
  for (int i = 0; i < 3; ++i) RefreshViews(app);
  app.EndEvent();  // noted once an event
  const auto faults = app.faults.TakeAll();
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0], "DrawWire: subscript out of range: group 99");
  app.model.Faces(0, 3).group = 0;
  RefreshViews(app);
  app.EndEvent();
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
