// The shaded view, by the calls that it makes: golden/shaded_*.txt.
#include "views/draw_shaded.h"

#include <gtest/gtest.h>

#include "graphics/gl_recorder.h"
#include "support/harness.h"

namespace pelorium {
namespace {

class Shaded : public ::testing::Test {
 protected:
  // Part 0 with one face (1 2 3) at (1, 2, 3), (4, 5, 6), (7, 8, 9), in a group of colour 0.5, 0.25, 0.
  Shaded() {
    settings.shown.showGrid = settings.shown.showOrigin = settings.shown.showWire =
        settings.shown.showChosenPoints = false;
    MaterialRec& material = model.MaterialGroups(7);
    material.KdR = 0.5, material.KdG = 0.25, material.KdB = 0;
    for (int i = 1; i <= 3; ++i) {
      PointRec& point = model.Points(0, i);
      point.X = 3 * i - 2, point.Y = 3 * i - 1, point.Z = 3 * i;
    }
    model.Part(0).maxpoints = 3;
    SetFaces(0, 1);
  }

  void SetFaces(int part, int count) {
    for (int i = 1; i <= count; ++i) {
      FaceRec& face = model.Faces(part, i);
      face.corner1pt = 1, face.corner2pt = 2, face.corner3pt = 3;
      face.group = 7;
    }
    model.Part(part).maxfaces = static_cast<std::int16_t>(count);
  }

  // The calls of a drawing, one a line.
  std::string Drawn() {
    recorder.Restart();
    DrawShaded(model, settings, recorder);
    return Lines();
  }
  std::string Lines() const {
    std::string lines;
    for (const GlCall& call : recorder.calls()) lines += CallText(call) + "\n";
    return lines;
  }
  static ::testing::AssertionResult Matches(const std::string& drawn, const std::string& name) {
    return MatchesGolden(drawn, "views/golden/shaded_" + name + ".txt");
  }

  ModelStore model;
  ShadedSettings settings;
  GlRecorder recorder;
};

TEST_F(Shaded, OneFaceInAPose) {
  settings.pose = {245, 10, 45, 1, -2, 3.5};
  settings.scale = 0.5;
  settings.viewportSide = 300;
  settings.shown.showWire = true;
  settings.showEdges = true;
  model.Faces(0, 1).c1X = 99;  // the copies of the corners do not count
  model.Points(0, 2).onoff = 0;
  EXPECT_TRUE(Matches(Drawn(), "face"));
}

// Faces 1, 59, 60 and 61 of all, then the chosen one; the last starts anew.
TEST_F(Shaded, TintRunsInBandsOverPartsAndFacesThatAreOff) {
  settings.shown.showWire = true;
  settings.shown.showChosenFace = true;
  settings.shown.currentPart = 1;
  settings.shown.chosenFace = 3;
  SetFaces(0, 59);
  SetFaces(1, 4);
  model.Part(0).minfaces = 0;  // a file may say so; face 0 is none
  for (int i = 2; i <= 58; ++i) model.Faces(0, i).onoff = 0;
  EXPECT_TRUE(Matches(Drawn(), "tint"));
}

TEST_F(Shaded, GridAndAxes) {
  settings.shown.showGrid = true;
  settings.shown.gridSpacing = 300;  // from -1000 to 800: seven lines each way
  EXPECT_TRUE(Matches(Drawn(), "grid"));
  settings.shown.showGrid = false;
  settings.shown.showOrigin = true;
  settings.shown.origin = {10, 20, 30};
  EXPECT_TRUE(Matches(Drawn(), "origin"));
}

TEST_F(Shaded, ProfilesAndOtherEdges) {
  settings.shown.currentPart = 1;
  settings.shown.currentProfile = 2;
  settings.showOtherEdges = settings.shown.showProfile = settings.shown.showOtherProfiles = true;
  for (const int profile : {2, 5}) {
    model.Profile(profile).count = 1;
    model.ProfilePts(0, profile).X = model.ProfilePts(1, profile).Z = profile;
  }
  EXPECT_TRUE(Matches(Drawn(), "profiles"));
}

TEST_F(Shaded, MarkedPoints) {
  settings.shown.showChosenPoints = settings.shown.showAllPoints = true;
  settings.shown.firstChosenPoint = 2, settings.shown.lastChosenPoint = 4;
  settings.shown.chosenPoint = 3;
  for (const int i : {1, 2, 3}) model.PointMark(0, i) = 1;
  model.PointMark(0, 4) = 0;
  EXPECT_TRUE(Matches(Drawn(), "points"));
}

TEST_F(Shaded, AFaultEndsTheShapeAndAMissingCornerOneFace) {
  settings.shown.showWire = true;
  SetFaces(0, 3);
  model.Faces(0, 2).group = 42;
  model.Faces(0, 2).onoff = 0;
  EXPECT_TRUE(Raises(FaultKind::Subscript, [this] { DrawShaded(model, settings, recorder); }));
  EXPECT_EQ(CallText(recorder.calls().back()), "End");
  model.Faces(0, 2).group = 7;
  model.Faces(0, 3).corner2pt = 23001;
  recorder.Restart();
  DrawShaded(model, settings, recorder);
  // Nothing of the face with the missing corner; the two before it stand.
  EXPECT_TRUE(Matches(Lines(), "fault"));
}

}  // namespace
}  // namespace pelorium
