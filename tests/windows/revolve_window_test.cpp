// The revolve window: what a press sets, and what follows by itself.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/form36_view.h"
#include "windows/form51_view_options.h"
#include "windows/form55_extrude_profile.h"
#include "windows/form5_precise_edit.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shared_parameters.h"

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
  EXPECT_EQ(app.form5.HScroll20.max(), 186);
  EXPECT_EQ(FaceRangeEnd(app), 221);
  EXPECT_EQ(app.form5.HScroll5.value(), 37);
  EXPECT_EQ(app.form5.HScroll5.max(), 120);
  EXPECT_TRUE(app.form51.Option4.value());  // from the profile view to the 3D view
  EXPECT_EQ(app.form51.Label3.caption(), "221faces  points 186");
  EXPECT_EQ(app.model.Faces(0, 1).c1X, 50);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(RevolveWindow, SectionsSetDegreesAndLastPoint) {
  app.revolveprof.HScroll10.Drag(35);
  EXPECT_EQ(app.revolveprof.Text8.text(), "35");
  EXPECT_EQ(app.revolveprof.Text9.text(), "10.2857142857143");
  EXPECT_EQ(app.revolveprof.HScroll11.value(), 35);
  app.revolveprof.HScroll10.Drag(61);
  EXPECT_EQ(app.revolveprof.Text6.text(), "61");
  EXPECT_EQ(app.model.Part(0).Sections, 61);
  EXPECT_EQ(app.form5.HScroll5.value(), 62);
  MakeCup();
  EXPECT_EQ(app.model.Part(0).maxfaces, 62 * 3 * 2 - 1);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(RevolveWindow, APointRangeCutByHandMakesNarrowerRings) {
  app.revolveprof.Text6.Type("18");
  MakeCup();
  EXPECT_EQ(app.model.Part(0).Sections, 18);
  EXPECT_EQ(app.model.Part(0).maxfaces, 19 * 3 * 2 - 1);
  EXPECT_EQ(app.form5.HScroll5.value(), 19);
}

TEST_F(RevolveWindow, LayersLimitFollowsTheProfileUntilMoved) {
  MakeCup();
  EXPECT_EQ(app.revolveprof.HScroll22.max(), 4);
  app.form51.Option1.SetValue(true);
  ClickAt(330, -300);
  PressItem("revolve2");
  EXPECT_EQ(app.revolveprof.HScroll22.value(), 5);
  app.revolveprof.HScroll22.Drag(2);
  PressItem("revolve2");
  EXPECT_EQ(app.model.Part(0).maxfaces, 37 * 2 - 1);
  app.form51.HScroll3.SetValue(1);
  app.form51.HScroll3.SetValue(0);
  PressItem("revolve2");
  EXPECT_EQ(app.revolveprof.HScroll22.value(), 5);
}

TEST_F(RevolveWindow, AutoRevolveBuildsAtEachMove) {
  MakeCup();
  app.revolveprof.Option2.SetValue(true);
  app.revolveprof.HScroll8.Drag(10);
  EXPECT_NE(app.model.Points(0, 5).X, 50 * 0.766044448);
  app.revolveprof.HScroll10.Drag(12);
  EXPECT_EQ(app.model.Part(0).maxfaces, 13 * 3 * 2 - 1);
  app.revolveprof.Option4.SetValue(true);
  app.revolveprof.HScroll10.Drag(20);
  EXPECT_EQ(app.model.Part(0).maxfaces, 13 * 3 * 2 - 1);
}

TEST_F(RevolveWindow, PlainRevolveOfTheMenuTakesTheEffectsOff) {
  app.revolveprof.HScroll8.Drag(10);
  app.revolveprof.Text3.Type("5");
  MakeCup();
  EXPECT_NE(app.model.Points(0, 2).X, 0);
  PressItem("revolveit1");
  EXPECT_EQ(app.revolveprof.Text5.text(), "0");
  EXPECT_EQ(app.revolveprof.Text3.text(), "0");
  EXPECT_NEAR(app.model.Points(0, 10).X, 0, 1e-4);
  EXPECT_NEAR(app.model.Points(0, 10).Y, 50, 1e-4);
}

TEST_F(RevolveWindow, JoinEndsMakesTheRingsMeet) {
  app.revolveprof.Text9.Type("9.5");
  MakeCup();
  EXPECT_NE(app.model.Points(0, 37).X, app.model.Points(0, 1).X);
  PressItem("joinit");
  EXPECT_EQ(app.model.Points(0, 37).X, app.model.Points(0, 1).X);
  EXPECT_EQ(app.model.Points(0, 74).Y, app.model.Points(0, 38).Y);
  EXPECT_EQ(app.model.Faces(0, 71).c2X, app.model.Points(0, 37).X);
}

TEST_F(RevolveWindow, GeneralFieldsBelongToTheProfile) {
  app.model.Profile(2).genMultX = 1.234;
  app.model.Profile(2).genMoveY = 5000;
  app.form51.HScroll3.SetValue(2);
  EXPECT_EQ(app.revolveprof.HScroll37.value(), 123);
  EXPECT_EQ(app.revolveprof.Text27.text(), "1.234");
  EXPECT_EQ(app.revolveprof.HScroll32.value(), 1200);
  EXPECT_EQ(app.model.Profile(2).genMultX, 1.234);  // shown, not written back
  app.revolveprof.HScroll37.Drag(150);
  EXPECT_EQ(app.model.Profile(2).genMultX, 1.5);
  app.form55.HScroll24.Drag(20);  // writes 19; the bar must not fall back to it
  app.revolveprof.HScroll31.Drag(7);
  EXPECT_EQ(app.form55.HScroll24.value(), 20);
  EXPECT_EQ(dynamic_cast<ScrollBar&>(*app.form55.Find("HScroll37")).value(), 7);
}

// What an extrude set is no limit of the person's.
TEST_F(RevolveWindow, LayersLimitOfAnExtrudeIsNotKept) {
  MakeCup();
  app.revolveprof.HScroll22.Drag(2);
  app.form55.HScroll24.Drag(3);
  app.form55.Command30.Press();
  app.revolveprof.Command15.Press();
  EXPECT_EQ(app.revolveprof.HScroll22.value(), 4);
}

TEST_F(RevolveWindow, ProfilesFromTheResultLeaveTheSource) {
  app.revolveprof.Check5.SetValue(true);
  MakeCup();
  EXPECT_EQ(app.model.Profile(0).count, 4);
  EXPECT_EQ(app.model.Profile(9).count, 4);
  EXPECT_NEAR(app.model.ProfilePts(1, 9).Y, 60, 1e-4);
}

TEST_F(RevolveWindow, FaultsEndThePressQuietly) {
  app.revolveprof.Text43.Type("-3");
  MakeCup();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  EXPECT_EQ(app.automaticActionsHeld, 0);
  app.revolveprof.Text43.Type("1");
  PressItem("revolve2");
  EXPECT_EQ(app.model.Part(0).maxfaces, 221);
}

TEST_F(RevolveWindow, AnEmptyProfileMakesNoFaces) {
  PressItem("revolve2");
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  EXPECT_EQ(FaceRangeStart(app), 1);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
