// The freeface window, Combine, and the menu items that lead to them.
#include "windows/facetools/freeface_free_faces.h"

#include <array>

#include "app_fixture.h"
#include "base/numbers.h"
#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class FreeFaceWindow : public AppTest {
 protected:
  PartHeader& Part() { return app.model.Part(0); }
  std::array<int, 3> Corners(int face) {
    const FaceRec& f = app.model.Faces(0, face);
    return {f.corner1pt, f.corner2pt, f.corner3pt};
  }
  using Face = std::array<int, 3>;

  FreeFace& window = app.facetools->freeface;
};

TEST_F(FreeFaceWindow, CapsCloseARevolvedBody) {
  app.geometry->revolveprof.HScroll10.Drag(32);
  MakeCup();  // four rows of 33 points, 197 faces
  ASSERT_EQ(Part().maxfaces, 197);
  window.Command4.Press();
  EXPECT_EQ(Part().maxfaces, 228);
  EXPECT_EQ(Corners(228), (Face{1, 32, 33}));
  EXPECT_EQ(app.view->form5.Label1.caption(), "faces 228 points 166");
  EXPECT_EQ(app.view->form51.Label3.caption(), "228faces  points 166");
  EXPECT_EQ(FaceRangeEnd(app), 228);
  EXPECT_EQ(app.view->form51.HScroll7.max(), 228);
  EXPECT_EQ(app.facetools->editbyface.VScroll2.max(), 228);
  EXPECT_EQ(window.Text16.text(), "228");
  EXPECT_EQ(app.model.Faces(0, 228).c1X, app.model.Points(0, 1).X);
  window.Command5.Press();
  EXPECT_EQ(Corners(229), (Face{100, 101, 102}));
  window.Command7.Press();
  EXPECT_EQ(Corners(260), (Face{33, 66, 99}));
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(FreeFaceWindow, RevolvePressesTheTickedCaps) {
  app.geometry->revolveprof.Check6.SetValue(true);
  app.geometry->revolveprof.Check10.SetValue(true);
  MakeCup();
  EXPECT_EQ(Part().maxfaces, 221 + 35 + 4);
  EXPECT_EQ(Corners(257), (Face{1, 38, 75}));
}

TEST_F(FreeFaceWindow, FaceCountGoesOneBelowNone) {
  window.Command3.Press();
  window.Command3.Press();
  EXPECT_EQ(Part().maxfaces, -1);
  EXPECT_EQ(window.Text16.text(), "-1");
  EXPECT_EQ(FaceRangeEnd(app), 0);
  window.Command2.Press();
  EXPECT_EQ(Part().maxfaces, 0);
  window.HScroll15.box.Type("99999");
  window.Command12.Press();
  window.Command2.Press();
  EXPECT_EQ(Part().maxfaces, 7700);
  EXPECT_EQ(FaceRangeEnd(app), 7700);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(FreeFaceWindow, ChoosingAFaceShowsItWithoutWriting) {
  FaceRec& face = app.model.Faces(0, 5);
  face.corner1pt = 7, face.corner2pt = 8, face.corner3pt = 30000, face.onoff = 0;
  window.HScroll12.Drag(5);
  EXPECT_EQ(window.HScroll16.box.text(), "7");
  EXPECT_EQ(window.HScroll18.box.text(), "30000");
  EXPECT_EQ(window.HScroll19.box.text(), "0");
  EXPECT_EQ(Corners(5), (Face{7, 8, 30000}));
}

// Commit would store what the boxes still showed of the Part before.
TEST_F(FreeFaceWindow, TheRoutedFaceShowsWhatAPartChangeBrought) {
  app.model.Faces(1, 1).corner2pt = 9;
  app.view->form51.HScroll4.SetValue(1);
  EXPECT_EQ(window.HScroll17.box.text(), "9");
  app.view->form51.HScroll4.SetValue(0);
  MakeCup();
  EXPECT_EQ(window.HScroll18.box.text(), "38");
}

TEST_F(FreeFaceWindow, ProfilesBecomePoints) {
  app.model.PointMark(0, 3) = app.model.Points(0, 3).onoff = 0;
  for (int profile : {2, 5}) {
    app.model.Profile(profile).count = 2;
    for (int i = 0; i <= 2; ++i) app.model.ProfilePts(i, profile).X = 10 * profile + i;
  }
  PressItem("profimportmeall");
  EXPECT_EQ(Part().maxpoints, 6);
  EXPECT_EQ(app.model.Points(0, 3).X, 22);
  EXPECT_EQ(app.model.Points(0, 4).X, 50);
  EXPECT_EQ(app.model.PointMark(0, 3) + app.model.Points(0, 3).onoff, 2);
  EXPECT_EQ(PointRangeStart(app), 1);
  EXPECT_EQ(PointRangeEnd(app), 6);
  app.view->form51.HScroll3.SetValue(5);
  PressItem("importprofiles");
  EXPECT_EQ(Part().maxpoints, 3);
  EXPECT_EQ(app.model.Points(0, 1).X, 50);
}

}  // namespace
}  // namespace pelorium
