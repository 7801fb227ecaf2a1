// The wire views, pixel by pixel on a small picture of one unit a pixel.
#include "views/draw_views.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "support/model_text.h"
#include "views/zoom.h"

namespace pelorium {
namespace {

constexpr Colour kGround = Rgb(64, 64, 64), kGrid = Rgb(50, 50, 50), kAxis = Rgb(0, 0, 150),
                 kBlue = Rgb(0, 0, 255);
constexpr Colour kWire = Rgb(127, 255, 0), kChosen = Rgb(240, 240, 240), kAll = Rgb(100, 100, 200);

class Views : public ::testing::Test {
 protected:
  Views() {
    picture.SetScale(100, -100);
    settings.mode = ViewMode::Top;
    settings.showGrid = settings.showOrigin = settings.showChosenPoints = false;
    // Pans that put the origin at pixel (10, 90).
    settings.panX = 10;
    settings.panY = -90;
    model.MaterialGroups(3).KdR = 0.5, model.MaterialGroups(3).KdG = 1.5, model.MaterialGroups(3).KdB = -1;
    FaceRec& face = model.Faces(0, 1);
    face.group = 3;
    face.c2X = 40, face.c3X = 40, face.c3Y = 20, face.c3Z = 40;
    model.Part(0).maxfaces = 1;
  }

  // The colour at a place relative to the origin, up positive.
  Colour At(int right, int up) { return static_cast<Colour>(picture.PixelAt(10 + right, 90 - up)); }
  void Draw() { DrawViews(model, settings, picture, faults); }
  FaultLog faults;

  ModelStore model;
  ViewSettings settings;
  Picture picture{100, 100};
};

TEST_F(Views, ProjectionsPutTheThirdCornerInItsPlace) {
  struct Case {
    ViewMode mode;
    int right, up;  // of corner 3 (40, 20, 40)
  };
  for (const Case& c : {Case{ViewMode::Top, 40, 20},
                        {ViewMode::Tesselate, 40, 20},
                        {ViewMode::Front, 40, 40},
                        {ViewMode::Side, 40, 20},
                        {ViewMode::View3D, 40, 45}}) {
    settings.mode = c.mode;
    Draw();
    EXPECT_EQ(At(c.right, c.up), kWire) << static_cast<int>(c.mode);
  }
}

TEST_F(Views, WireComesFromTheCopiesAndDotsFromThePoints) {
  model.Part(0).maxpoints = 1;
  model.Points(0, 1).X = 60, model.Points(0, 1).Y = 60;
  model.PointMark(0, 1) = 1;
  settings.showAllPoints = true;
  Draw();
  EXPECT_EQ(At(40, 10), kWire);
  EXPECT_EQ(At(60, 60), kAll);
  model.PointMark(0, 1) = 0;
  model.Faces(0, 1).onoff = 0;
  Draw();
  EXPECT_EQ(At(60, 60), kGround);
  EXPECT_EQ(At(40, 10), kGround);
}

TEST_F(Views, ChosenFaceStandsOverTheWire) {
  settings.showChosenFace = true;
  Draw();
  EXPECT_EQ(At(40, 10), kChosen);
  settings.showWire = false;
  settings.chosenFace = 2;
  Draw();
  EXPECT_EQ(At(40, 10), kGround);
}

TEST_F(Views, ChosenPointsCarryTheirNumberAsColour) {
  for (int i = 1; i <= 3; ++i) {
    model.Points(0, i).X = 10 * i, model.Points(0, i).Y = 50;
    model.PointMark(0, i) = 1;
  }
  settings.showChosenPoints = true;
  settings.firstChosenPoint = 2;
  settings.lastChosenPoint = 3;
  settings.chosenPoint = 3;
  Draw();
  EXPECT_EQ(At(10, 50), kGround);
  EXPECT_EQ(At(20, 50), 2U);
  EXPECT_EQ(At(30, 50), 3U);
  EXPECT_EQ(At(33, 50), 3U);       // 8 wide: 4 to each side
  EXPECT_EQ(At(23, 50), kGround);  // 6 wide: 3 to each side
  EXPECT_EQ(picture.drawWidth, 1);
}

TEST_F(Views, ProfilesShowTheirDirection) {
  model.Profile(5).count = 2;
  PutProfile(model, 5, 0, {{5, 30, 0}, {50, 30, 0}, {50, 60, 0}});
  settings.currentProfile = 5;
  settings.showWire = false;
  settings.showProfile = true;
  Draw();
  EXPECT_EQ(At(5, 30), Rgb(100, 100, 100));
  EXPECT_EQ(At(50, 30), Rgb(100, 101, 101));
  EXPECT_EQ(At(50, 60), Rgb(100, 102, 101));
  EXPECT_EQ(At(25, 30), Rgb(150, 150, 150));
  settings.currentProfile = 0;
  settings.showProfile = false;
  settings.showOtherProfiles = true;
  Draw();
  EXPECT_EQ(At(25, 30), Rgb(100, 100, 100));
}

TEST_F(Views, ProfileViewWithAxesAndCross) {
  settings.mode = ViewMode::Profile;
  settings.profileProjection = Projection::Front;
  settings.showOrigin = true;
  settings.origin = {30, 0, 40};
  model.Profile(0).count = 1;
  model.ProfilePts(1, 0).X = 20, model.ProfilePts(1, 0).Z = 60;
  model.ProfilePts(0, 0).X = 20, model.ProfilePts(0, 0).Z = 20;
  Draw();
  EXPECT_EQ(At(0, 70), kAxis);
  EXPECT_EQ(At(70, 0), kAxis);
  EXPECT_EQ(At(20, 50), Rgb(220, 220, 220));
  EXPECT_EQ(At(30, 50), kBlue);
  EXPECT_EQ(At(45, 40), kBlue);
  EXPECT_EQ(At(40, 10), kGround);  // the Parts stay away
  settings.showPartsInProfileView = true;
  Draw();
  EXPECT_EQ(At(40, 30), kWire);
  EXPECT_EQ(picture.foreColour, Rgb(250, 0, 0));
}

TEST_F(Views, GridStaysWhereItIs) {
  settings.mode = ViewMode::View3D;
  settings.showGrid = true;
  settings.gridSpacing = 40;
  Draw();
  EXPECT_EQ(picture.PixelAt(5, 40), static_cast<int>(kGrid));
  EXPECT_EQ(picture.PixelAt(80, 33), static_cast<int>(kGrid));
  EXPECT_EQ(picture.PixelAt(41, 33), static_cast<int>(kGround));
}

TEST_F(Views, TriViewSetsFrontAboveAndSideBeside) {
  settings.mode = ViewMode::Tri;
  settings.triSeparation = 45;
  settings.panX = 5;
  settings.panY = -95;
  Draw();
  EXPECT_EQ(picture.PixelAt(45, 85), static_cast<int>(kWire));            // Top: edge at X 40
  EXPECT_EQ(picture.PixelAt(45, 30), static_cast<int>(kWire));            // Front: 45 higher
  EXPECT_EQ(picture.PixelAt(50 + 20, 95 - 10), static_cast<int>(kWire));  // Side: Z 20, Y 10, 45 to the right
}

TEST_F(Views, CountersAndGroupsOutsideTheTables) {
  model.Part(0).minfaces = 0;  // a file may say so; face 0 is no face
  model.Part(0).maxfaces = 0;
  Draw();
  EXPECT_EQ(At(40, 10), kGround);
  model.Part(0).maxfaces = 1;
  model.Faces(0, 1).group = 42;
  settings.showChosenPoints = true;
  settings.lastChosenPoint = 23001;
  Draw();  // each routine ends alone: the axes stand
  EXPECT_EQ(faults.TakeAll(),
            (std::vector<std::string>{"DrawWire: subscript out of range: group 42",
                                      "DrawChosenPoints: subscript out of range: point 23001"}));
  EXPECT_NE(At(40, 0), kGround);
}

TEST_F(Views, Captions) {
  EXPECT_EQ(ViewCaption(settings), " TOP VIEW");
  settings.mode = ViewMode::Profile;
  settings.profileProjection = Projection::Oblique;
  EXPECT_EQ(ViewCaption(settings), " PROFILE VIEW--3D ");
}

TEST(Zoom, MultipliesBothScalesWithinLimits) {
  Picture picture(964, 637);
  picture.SetScale(964, -637);
  EXPECT_TRUE(Zoom(picture, kZoomIn));
  EXPECT_EQ(picture.ScaleWidth(), 723);
  EXPECT_EQ(picture.ScaleHeight(), -477.75);
  EXPECT_EQ(PanAfterZoom(-637, -477.75), -80);  // floor of -79.625
  EXPECT_EQ(PanAfterZoom(-637, -796.25), 79);
  picture.SetScale(1.2, -1);
  EXPECT_FALSE(Zoom(picture, kZoomIn));
  EXPECT_EQ(picture.ScaleWidth(), 1.2);
  picture.SetScale(7000, -1);
  EXPECT_FALSE(Zoom(picture, kZoomOut));
}

}  // namespace
}  // namespace pelorium
