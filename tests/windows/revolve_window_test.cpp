// The revolve window: what a press sets, and what follows by itself.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

using RevolveWindow = AppTest;

TEST_F(RevolveWindow, APressMakesThePartAndOpensTheRanges) {
  MakeCup();
  const PartHeader& part = app.model.Part(0);
  EXPECT_EQ(part.maxpoints, 186);  // (4 + 1) * 37 + 1
  EXPECT_EQ(part.maxfaces, 221);   // 37 * 3 * 2 - 1
  EXPECT_EQ(part.Sections, 36);
  EXPECT_EQ(part.count, 4);
  EXPECT_EQ(app.model.Profile(0).sectionCount, 36);
  EXPECT_EQ(PointRangeStart(app), 1);
  EXPECT_EQ(PointRangeEnd(app), 186);
  EXPECT_EQ(app.view->form5.HScroll20.max(), 186);
  EXPECT_EQ(FaceRangeEnd(app), 221);
  EXPECT_EQ(app.view->form5.HScroll5.value(), 37);
  EXPECT_EQ(app.view->form5.HScroll5.max(), 120);
  EXPECT_TRUE(app.view->form51.Option4.value());  // from the profile view to the 3D view
  EXPECT_EQ(app.view->form51.Label3.caption(), "221faces  points 186");
  EXPECT_EQ(app.model.Faces(0, 1).c1X, 50);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(RevolveWindow, APointRangeCutByHandMakesNarrowerRings) {
  app.geometry->revolveprof.HScroll11.box.Type("18");
  MakeCup();
  EXPECT_EQ(app.model.Part(0).Sections, 18);
  EXPECT_EQ(app.model.Part(0).maxfaces, 19 * 3 * 2 - 1);
  EXPECT_EQ(app.view->form5.HScroll5.value(), 19);
}

TEST_F(RevolveWindow, LayersLimitFollowsTheProfileUntilMoved) {
  MakeCup();
  EXPECT_EQ(app.geometry->revolveprof.HScroll22.max(), 4);
  app.view->form51.Option1.SetValue(true);
  ClickAt(330, -300);
  PressItem("revolve2");
  EXPECT_EQ(app.geometry->revolveprof.HScroll22.value(), 5);
  app.geometry->revolveprof.HScroll22.Drag(2);
  PressItem("revolve2");
  EXPECT_EQ(app.model.Part(0).maxfaces, 37 * 2 - 1);
  app.view->form51.HScroll3.SetValue(1);
  app.view->form51.HScroll3.SetValue(0);
  PressItem("revolve2");
  EXPECT_EQ(app.geometry->revolveprof.HScroll22.value(), 5);
}

TEST_F(RevolveWindow, AutoRevolveBuildsAtEachMove) {
  MakeCup();
  app.geometry->revolveprof.Option2.SetValue(true);
  app.geometry->revolveprof.HScroll8.Drag(10);
  EXPECT_NE(app.model.Points(0, 5).X, 50 * 0.766044448);
  app.geometry->revolveprof.HScroll10.Drag(12);
  EXPECT_EQ(app.model.Part(0).maxfaces, 13 * 3 * 2 - 1);
  app.geometry->revolveprof.Option4.SetValue(true);
  app.geometry->revolveprof.HScroll10.Drag(20);
  EXPECT_EQ(app.model.Part(0).maxfaces, 13 * 3 * 2 - 1);
}

TEST_F(RevolveWindow, PlainRevolveOfTheMenuTakesTheEffectsOff) {
  app.geometry->revolveprof.HScroll8.Drag(10);
  app.geometry->revolveprof.HScroll5.box.Type("5");
  MakeCup();
  EXPECT_NE(app.model.Points(0, 2).X, 0);
  PressItem("revolveit1");
  EXPECT_EQ(app.geometry->revolveprof.HScroll8.box.text(), "0");
  EXPECT_EQ(app.geometry->revolveprof.HScroll5.box.text(), "0");
  EXPECT_NEAR(app.model.Points(0, 10).X, 0, 1e-4);
  EXPECT_NEAR(app.model.Points(0, 10).Y, 50, 1e-4);
}

// What an extrude set is no limit of the person's.
TEST_F(RevolveWindow, LayersLimitOfAnExtrudeIsNotKept) {
  MakeCup();
  app.geometry->revolveprof.HScroll22.Drag(2);
  app.geometry->form55.HScroll24.Drag(3);
  app.geometry->form55.Command30.Press();
  app.geometry->revolveprof.Command15.Press();
  EXPECT_EQ(app.geometry->revolveprof.HScroll22.value(), 4);
}

TEST_F(RevolveWindow, ProfilesFromTheResultLeaveTheSource) {
  app.geometry->revolveprof.Check5.SetValue(true);
  MakeCup();
  EXPECT_EQ(app.model.Profile(0).count, 4);
  EXPECT_EQ(app.model.Profile(9).count, 4);
  EXPECT_NEAR(app.model.ProfilePts(1, 9).Y, 60, 1e-4);
}

TEST_F(RevolveWindow, FaultsEndThePressQuietly) {
  app.geometry->revolveprof.HScroll46.box.Type("-3");
  MakeCup();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  EXPECT_EQ(app.automaticActionsHeld, 0);
  app.geometry->revolveprof.HScroll46.box.Type("1");
  PressItem("revolve2");
  EXPECT_EQ(app.model.Part(0).maxfaces, 221);
}

}  // namespace
}  // namespace pelorium
