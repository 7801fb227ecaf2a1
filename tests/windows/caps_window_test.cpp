// Caps on bodies whose rings or rows were cut by hand.
#include "app_fixture.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/freeface_free_faces.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"

namespace pelorium {
namespace {

using Corners = std::array<int, 3>;

class Caps : public AppTest {
 protected:
  Corners Face(int number) {
    const FaceRec& face = app.model.Faces(0, number);
    return {face.corner1pt, face.corner2pt, face.corner3pt};
  }
  Corners LastFace() { return Face(app.model.Part(0).maxfaces); }
  void Drag(const char* window, const char* bar, double value) {
    UserEvent event{window, bar, UserAction::Drag};
    event.value = value;
    EXPECT_TRUE(app.Deliver(event));
  }
  // Four layers of a ring cut to 11 points: rows start at 1, 12, 23, 34.
  void MakeCutCup() {
    Drag("revolveprof", "HScroll11", 10);
    MakeCup();
  }

  RevolveProf& revolve = app.geometry->revolveprof;
  FreeFace& faces = app.facetools->freeface;
};

TEST_F(Caps, OfARevolveCloseTheRingsThatWereLaid) {
  revolve.Check6.SetValue(true);  // bottom
  revolve.Check7.SetValue(true);  // top
  MakeCutCup();
  EXPECT_EQ(app.model.Part(0).maxfaces, 11 * 3 * 2 - 1 + 2 * 9);
  EXPECT_EQ(Face(66), (Corners{1, 2, 3}));
  EXPECT_EQ(Face(66 + 8), (Corners{1, 10, 11}));
  EXPECT_EQ(Face(75), (Corners{34, 35, 36}));
  EXPECT_EQ(LastFace(), (Corners{34, 43, 44}));
}

TEST_F(Caps, ByHandToo) {
  MakeCutCup();
  faces.Command5.Press();
  EXPECT_EQ(LastFace(), (Corners{34, 43, 44}));
  faces.Command7.Press();  // the last points of all rows
  EXPECT_EQ(Face(75), (Corners{11, 22, 33}));
}

// 35 sections a row then, as Revolve Profile and "Extra pts per row" say, in 4 rows.
TEST_F(Caps, ByHandForgetTheBodyOnceItMayBeAnother) {
  const auto topCap = [this] {
    faces.Command5.Press();
    return LastFace();
  };
  MakeCutCup();
  Drag("revolveprof", "HScroll22", 3);
  EXPECT_EQ(topCap(), (Corners{75, 110, 111}));
  MakeCutCup();
  Drag("revolveprof", "HScroll10", 20);
  EXPECT_EQ(topCap()[0], 2 * 21 + 1);
  Drag("revolveprof", "HScroll10", 36);
  MakeCutCup();
  faces.Text18.Type("2");
  EXPECT_EQ(topCap()[0], 3 * 38 + 1 - (4 - revolve.HScroll22.value()) * 38);
  faces.Text18.Type("1");
  MakeCutCup();
  platform.QueueAnswer("a.prj");
  app.frame->form31.Command14.Press();
  platform.QueueAnswer("a.prj");
  app.frame->form31.Command15.Press();
  EXPECT_FALSE(app.model.Part(0).grid.has_value());
}

TEST_F(Caps, OfAnExtrudeThatLaysNothing) {
  for (int i = 0; i < 5; ++i) ClickAt(static_cast<float>(418 + 10 * i), -318);
  app.model.Profile(0).topCap = app.model.Profile(0).bottomCap = 1;
  Drag("Form55", "HScroll24", 0);
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.Part(0).maxfaces, 0);
  Drag("Form55", "HScroll24", 3);
  Drag("revolveprof", "HScroll9", 1);  // Points Start: rings of 4
  app.geometry->form55.Command30.Press();
  EXPECT_EQ(app.model.PointMark(0, 0), 1);
  const int cap = app.model.Part(0).maxfaces;
  EXPECT_EQ(cap, 4 * 2 * 2 - 1 + 2 * 2);  // three rings, the last one starts at 9
  EXPECT_EQ(Face(cap - 3), (Corners{1, 2, 3}));
  EXPECT_EQ(Face(cap), (Corners{9, 11, 12}));
}

}  // namespace
}  // namespace pelorium
