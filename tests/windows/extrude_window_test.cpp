// The Extrude window: its bars and the profile's settings, and what an extrude sets elsewhere.
#include "app_fixture.h"
#include "windows/facetools/freeface_free_faces.h"
#include "windows/geometry/extrude_fields.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class ExtrudeWindow : public AppTest {
 protected:
  ScrollBar& Bar(const char* name) { return dynamic_cast<ScrollBar&>(*app.geometry->form55.Find(name)); }
  std::string Text(const char* name) {
    return dynamic_cast<TextBox&>(*app.geometry->form55.Find(name)).text();
  }
  void Draw(int points) {
    for (int i = 0; i < points; ++i) ClickAt(static_cast<float>(418 + 10 * i), -318);
  }
  const PartHeader& Part() { return app.model.Part(0); }
};

TEST_F(ExtrudeWindow, FirstPressMakesOneRingFewerThanTheNext) {
  Draw(5);
  Bar("HScroll24").Drag(20);
  EXPECT_EQ(app.model.Profile(0).layerCount, 19);
  for (int layers : {20, 20}) {
    app.geometry->form55.Command30.Press();
    EXPECT_EQ(app.model.Profile(0).layerCount, layers);
    EXPECT_EQ(Part().maxpoints, 100);
    EXPECT_EQ(Part().maxfaces, 5 * 19 * 2 - 1);
  }
  EXPECT_EQ(app.view->form5.HScroll25.value(), 100);
  EXPECT_EQ(app.view->form5.HScroll20.max(), 105);
  EXPECT_EQ(app.view->form5.HScroll5.value(), 5);
  EXPECT_EQ(Part().Sections, 4);
  EXPECT_EQ(app.geometry->revolveprof.HScroll22.value(), 20);
  EXPECT_TRUE(app.view->form51.Option4.value());
  EXPECT_EQ(app.model.Faces(0, 1).c2X, 110);  // the corner copies are fresh
}

TEST_F(ExtrudeWindow, AShortProfileIsRaisedToFourPoints) {
  Draw(2);
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.Profile(0).count, 4);
  EXPECT_EQ(app.view->form51.HScroll6.value(), 4);
  EXPECT_EQ(Part().maxpoints, 48);
}

TEST_F(ExtrudeWindow, NothingToBuild) {
  Draw(4);
  for (int sections : {0, 1}) {
    Bar("HScroll24").Drag(sections);
    app.geometry->form55.Command30.Press();
    EXPECT_EQ(Part().maxfaces, 0);
    EXPECT_EQ(Part().maxpoints, 4 * sections);
    app.model.Profile(0).layerCount = static_cast<std::int16_t>(sections - 1);
  }
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(ExtrudeWindow, AutoCalcDegDividesTheTurn) {
  Draw(4);
  app.geometry->form55.Check6.SetValue(true);
  app.geometry->form55.Check1.SetValue(true);
  Bar("HScroll24").Drag(5);
  EXPECT_EQ(app.model.ProfilePts(5, 0).spinZ, 90);
  EXPECT_EQ(app.model.ProfilePts(6, 0).spinZ, 0);
  EXPECT_EQ(Text("Text25"), "90");
  EXPECT_EQ(Part().maxpoints, 20);
  app.faults.TakeAll();
  Bar("HScroll24").Drag(1);  // no step to divide by: no spin, no extrude
  EXPECT_EQ(app.faults.TakeAll().size(), 1u);
  EXPECT_EQ(app.model.Profile(0).layerCount, 0);
  EXPECT_EQ(Part().maxpoints, 20);
  Bar("HScroll24").Drag(0);
  EXPECT_EQ(app.model.ProfilePts(0, 0).spinZ, -360);
}

TEST_F(ExtrudeWindow, ProgressiveReachesToTheLastLayer) {
  app.geometry->form55.Check4.SetValue(true);
  Bar("HScroll16").Drag(10);
  Bar("HScroll31").Drag(25);
  EXPECT_EQ(app.model.ProfilePts(9, 0).moveX, 0);
  EXPECT_EQ(app.model.ProfilePts(10, 0).moveX, 25);
  EXPECT_EQ(app.model.ProfilePts(12, 0).moveX, 25);
  EXPECT_EQ(app.model.ProfilePts(13, 0).moveX, 0);
  Bar("HScroll34").Drag(50);
  EXPECT_EQ(app.model.ProfilePts(12, 0).multX, 0.5);
  EXPECT_EQ(app.model.ProfilePts(12, 0).multZ, 0.5);
  Bar("HScroll16").Drag(20);
  Bar("HScroll31").Drag(5);
  EXPECT_EQ(app.model.ProfilePts(20, 0).moveX, 5);
}

TEST_F(ExtrudeWindow, ChoosingAProfileShowsItAndWritesNothing) {
  app.geometry->form55.Check1.SetValue(true);
  ProfileHeader& other = app.model.Profile(3);
  other.genMultX = 1.234;
  other.layerCount = 40;
  other.topCap = 1;
  other.bottomCap = 2;
  other.addProfile1X = 50;
  app.geometry->form55.HScroll35.Drag(3);
  EXPECT_EQ(app.view->form51.HScroll3.value(), 3);
  EXPECT_EQ(Text("Text43"), "1.234");
  EXPECT_EQ(Text("Text31"), "50");
  EXPECT_EQ(Bar("HScroll24").value(), 36);
  EXPECT_TRUE(app.geometry->form55.Check3.value());
  EXPECT_FALSE(app.geometry->form55.Check2.value());
  app.geometry->form55.HScroll35.Drag(0);
  EXPECT_EQ(other.genMultX, 1.234);
  EXPECT_EQ(other.layerCount, 40);
  EXPECT_EQ(other.bottomCap, 2);
  EXPECT_EQ(Part().maxpoints, 0);
}

TEST_F(ExtrudeWindow, AdditiveAddsTwiceAndKeepsTheCounts) {
  Draw(4);
  app.geometry->form55.Command30.Press();
  app.model.Profile(0).genMoveX = 5;
  app.geometry->form55.Check5.SetValue(true);
  app.geometry->form55.Command30.Press();
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.Points(0, 2).X, 120);
  EXPECT_EQ(app.model.Faces(0, 1).c2X, 120);
  EXPECT_EQ(Part().maxpoints, 48);
}

TEST_F(ExtrudeWindow, EachTickPressesTheOtherCap) {
  Draw(5);
  app.geometry->form55.Check3.SetValue(true);
  app.geometry->form55.Command30.Press();
  const int grid = 5 * 11 * 2 - 1;
  EXPECT_EQ(Part().maxfaces, grid + 3);
  EXPECT_EQ(app.model.Faces(0, grid + 1).corner1pt, 1);
  EXPECT_EQ(app.model.Faces(0, grid + 3).corner3pt, 5);
  app.geometry->form55.Check3.SetValue(false);
  app.geometry->form55.Check2.SetValue(true);
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.Faces(0, grid + 1).corner1pt, 11 * 5 + 1);
}

TEST_F(ExtrudeWindow, SeamlessWeldsWithinTwoUnits) {
  for (float x : {418.0f, 428.0f, 438.0f, 419.0f}) ClickAt(x, -318);
  app.geometry->form55.Check8.SetValue(true);
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.Points(0, 4).X, 100);
  EXPECT_EQ(app.geometry->specialeffects1.HScroll3.value(), 2);
  EXPECT_EQ(Part().Sections, 2);
  EXPECT_EQ(app.view->form5.HScroll5.max(), 36);
  EXPECT_EQ(app.view->form5.HScroll5.value(), 3);
}

TEST_F(ExtrudeWindow, ClearSettingsBringsTheDefaultsBack) {
  Draw(2);
  Bar("HScroll37").Drag(40);
  Bar("HScroll12").Drag(40);
  app.geometry->form55.Check2.SetValue(true);
  app.geometry->form55.Command33.Press();
  EXPECT_EQ(app.model.Profile(0).genMoveX, 0);
  EXPECT_EQ(app.model.ProfilePts(0, 0).secMultX, 1);
  EXPECT_EQ(Bar("HScroll12").value(), 100);
  EXPECT_EQ(app.model.ProfilePts(1, 0).X, 110);  // the drawing stays
  EXPECT_EQ(app.model.Profile(0).count, 2);
  EXPECT_EQ(Text("Text40"), "0");
  EXPECT_EQ(app.geometry->revolveprof.HScroll31.box.text(), "0");
  EXPECT_FALSE(app.geometry->form55.Check2.value());
}

}  // namespace
}  // namespace pelorium
