// The window that edits a range of profiles and makes Parts of them.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/freeface_free_faces.h"
#include "windows/profiles/formulas3frm_edit_profile_ranges.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class RangeWindow : public AppTest {
 protected:
  // Profile 0 is a square of side 10 that ends where it began; the window copies it to 0..2, 10 apart.
  void PrepareStack() {
    constexpr double kCorners[5][2] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
    for (int i = 0; i < 5; ++i) {
      app.model.ProfilePts(i, 0).X = kCorners[i][0];
      app.model.ProfilePts(i, 0).Z = kCorners[i][1];
    }
    app.view->form51.HScroll6.SetValue(4);
    window.HScroll13.Drag(2);
    window.HScroll2.Drag(2);
  }

  void DragOn(float x0, float y0, float x1, float y1, MouseButton button = MouseButton::Left) {
    UserEvent event;
    event.window = "Formulas3frm", event.control = "Picture1";
    event.click.button = button;
    event.action = UserAction::MouseDown, event.x = x0, event.y = y0;
    app.Deliver(event);
    event.action = UserAction::MouseMove, event.x = x1, event.y = y1;
    app.Deliver(event);
    event.action = UserAction::MouseUp;
    app.Deliver(event);
  }

  ProfilePointRec& At(int point, int profile) { return app.model.ProfilePts(point, profile); }
  Formulas3Frm& window = app.profiles->formulas3frm;
};

TEST_F(RangeWindow, GenFacesMakesThePartFromTheCopies) {
  PrepareStack();
  window.Check2.SetValue(true);
  window.Check3.SetValue(true);
  window.Command8.Press();
  const PartHeader& part = app.model.Part(0);
  EXPECT_EQ(part.maxpoints, 15);
  EXPECT_EQ(part.maxfaces, 19);  // 5 * 2 * 2 - 1
  EXPECT_EQ(part.Sections, 4);
  EXPECT_EQ(part.count, 0);
  EXPECT_EQ(app.model.Points(0, 12).X, 10);
  EXPECT_EQ(app.model.Points(0, 12).Y, 20);
  EXPECT_EQ(app.model.Faces(0, 9).corner1pt, 1);  // the open seam
  EXPECT_EQ(app.model.Faces(0, 12).c3Y, 20);
  EXPECT_EQ(app.facetools->freeface.HScroll11.value(), 5);
  EXPECT_EQ(app.facetools->freeface.HScroll2.value(), 2);
  EXPECT_EQ(PointRangeEnd(app), 15);
  EXPECT_EQ(FaceRangeEnd(app), 19);
  EXPECT_EQ(app.view->form5.HScroll5.value(), 5);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(RangeWindow, CapsCloseTheLastAndTheFirstRow) {
  PrepareStack();
  app.facetools->freeface.HScroll1.SetValue(9);  // what a person left there does not matter
  window.Check2.SetValue(true);
  window.Check4.SetValue(true);
  window.Check5.SetValue(true);
  window.Command8.Press();
  EXPECT_EQ(app.model.Part(0).maxfaces, 23);
  EXPECT_EQ(app.model.Faces(0, 20).corner1pt, 11);
  EXPECT_EQ(app.model.Faces(0, 22).corner1pt, 1);
  EXPECT_EQ(FaceRangeEnd(app), 23);
}

TEST_F(RangeWindow, AdditiveStandsBehindWhatThePartHolds) {
  PrepareStack();
  window.Check2.SetValue(true);
  window.Command8.Press();
  window.Check1.SetValue(true);
  window.Check4.SetValue(true);
  window.Command8.Press();
  EXPECT_EQ(app.model.Part(0).maxpoints, 30);
  EXPECT_EQ(app.model.Part(0).maxfaces, 19 + 19 + 2);
  EXPECT_EQ(app.model.Faces(0, 1).corner2pt, 2);
  EXPECT_EQ(app.model.Faces(0, 20).corner1pt, 16);
  EXPECT_EQ(app.model.Faces(0, 20).corner3pt, 21);
  EXPECT_EQ(app.model.Faces(0, 39).corner1pt, 16);  // the cap
  window.Check2.SetValue(false);
  window.Command7.Press();
  window.Command8.Press();  // the points were laid by hand
  EXPECT_EQ(app.model.Part(0).maxpoints, 45);
  EXPECT_EQ(app.model.Faces(0, 41).corner1pt, 31);
}

TEST_F(RangeWindow, NothingToBuildMakesNoFaces) {
  window.Check2.SetValue(true);
  window.Check4.SetValue(true);
  window.HScroll1.Drag(20);
  window.Command8.Press();
  EXPECT_EQ(app.model.Part(0).maxpoints, 0);
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
