// The shaded view, by the calls that it makes.
#include "views/draw_shaded.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graphics/gl_recorder.h"
#include "support/harness.h"

namespace pelorium {
namespace {

using Lines = std::vector<std::string>;

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

  // What comes after the pose, without the changes of the depth range.
  Lines Drawn() {
    recorder.Restart();
    DrawShaded(model, settings, recorder);
    Lines lines = AllLines();
    lines.erase(lines.begin(), lines.begin() + 8);
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("DepthRange"); });
    return lines;
  }
  Lines AllLines() const {
    Lines lines;
    for (const GlCall& call : recorder.calls()) lines.push_back(CallText(call));
    return lines;
  }
  // The colours of the vertices drawn, one for each colour call.
  Lines Colours() {
    Lines lines = Drawn();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("Color3f"); });
    return lines;
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
  DrawShaded(model, settings, recorder);
  EXPECT_EQ(AllLines(), (Lines{"ClearColourAndDepth",  "LoadIdentity",        "Scalef 0.5 0.5 0.5",
                               "Viewport 0 0 300 300", "Translatef 1 -2 3.5", "Rotatef 245 1 0 0",
                               "Rotatef 10 0 1 0",     "Rotatef 45 0 0 1",
                               "DepthRange 0.0005 1",  //
                               "Begin Triangles",      "Color3f 0.5 0.25 0",  "Vertex3f 1 2 3",
                               "Vertex3f 4 5 6",       "Vertex3f 7 8 9",      "End",
                               "DepthRange 0 0.9995",  // the edges are nearer than their faces
                               "Begin Lines",          "Color3f 0.5 0.5 0.5", "Vertex3f 1 2 3",
                               "Vertex3f 4 5 6",       "Vertex3f 4 5 6",      "Vertex3f 7 8 9",
                               "Vertex3f 7 8 9",       "Vertex3f 1 2 3",      "End",  //
                               "DepthRange 0.0005 1"}));
}

TEST_F(Shaded, TintRunsInBandsOverPartsAndFacesThatAreOff) {
  settings.shown.showWire = true;
  settings.shown.showChosenFace = true;
  settings.shown.currentPart = 1;
  settings.shown.chosenFace = 3;
  SetFaces(0, 59);
  SetFaces(1, 4);
  model.Part(0).minfaces = 0;  // a file may say so; face 0 is none
  for (int i = 2; i <= 58; ++i) model.Faces(0, i).onoff = 0;
  EXPECT_EQ(Colours(), (Lines{"Color3f 0.5 0.25 0", "Color3f 1.08 0.83 0.58",    // faces 1 and 59
                              "Color3f 1.09 0.84 0.59", "Color3f 1.1 0.85 0.6",  // 60 and 61
                              "Color3f 0.9 0.9 0.9", "Color3f 0.51 0.26 0.01"}));
}

TEST_F(Shaded, GridAndAxes) {
  settings.shown.showGrid = true;
  settings.shown.gridSpacing = 300;  // from -1000 to 800: seven lines each way
  const Lines lines = Drawn();
  ASSERT_EQ(lines.size(), 1U + 1 + 7 * 4 + 9 + 1);
  EXPECT_EQ(Lines(lines.begin() + 1, lines.begin() + 6),
            (Lines{"Color3f 0.3 0.3 0.3", "Vertex3f -1000 -1000 0", "Vertex3f 1000 -1000 0",
                   "Vertex3f -1000 -1000 0", "Vertex3f -1000 1000 0"}));
  EXPECT_EQ(lines[27], "Vertex3f 1000 800 0");
  EXPECT_EQ(Lines(lines.begin() + 30, lines.end()),
            (Lines{"Color3f 0.7 0.2 0.2", "Vertex3f -40 0 1", "Vertex3f 40 0 1", "Color3f 0.2 0.7 0.2",
                   "Vertex3f 0 -40 1", "Vertex3f 0 40 1", "Color3f 0.2 0.2 0.7", "Vertex3f 0 0 -40",
                   "Vertex3f 0 0 40", "End"}));
  settings.shown.showGrid = false;
  settings.shown.showOrigin = true;
  settings.shown.origin = {10, 20, 30};
  EXPECT_EQ(Drawn(), (Lines{"Begin Lines", "Color3f 0.7 0.2 0.2", "Vertex3f -690 20 30", "Vertex3f 710 20 30",
                            "Color3f 0.2 0.7 0.2", "Vertex3f 10 -680 30", "Vertex3f 10 720 30",
                            "Color3f 0.2 0.2 0.7", "Vertex3f 10 20 -670", "Vertex3f 10 20 730", "End"}));
}

TEST_F(Shaded, ProfilesAndOtherEdges) {
  settings.shown.currentPart = 1;
  settings.shown.currentProfile = 2;
  settings.showOtherEdges = settings.shown.showProfile = settings.shown.showOtherProfiles = true;
  for (const int profile : {2, 5}) {
    model.Profile(profile).count = 1;
    model.ProfilePts(0, profile).X = model.ProfilePts(1, profile).Z = profile;
  }
  EXPECT_EQ(Drawn(), (Lines{"Begin Lines",
                            "Color3f 0.2 0.2 0.2",
                            "Vertex3f 1 2 3",
                            "Vertex3f 4 5 6",
                            "Vertex3f 4 5 6",
                            "Vertex3f 7 8 9",
                            "Vertex3f 7 8 9",
                            "Vertex3f 1 2 3",
                            "End",  //
                            "Begin Lines",
                            "Color3f 0.4 0.4 0.4",
                            "Vertex3f 5 0 0",
                            "Vertex3f 0 0 5",
                            "End",
                            "PointSize 2",
                            "Begin Points",
                            "Color3f 0.4 0.4 0.4",
                            "Vertex3f 5 0 0",
                            "Vertex3f 0 0 5",
                            "End",  //
                            "Begin Lines",
                            "Color3f 0.7 0.7 0.7",
                            "Vertex3f 2 0 0",
                            "Vertex3f 0 0 2",
                            "End",
                            "PointSize 3",
                            "Begin Points",
                            "Color3f 0.7 0 0",
                            "Vertex3f 2 0 0",
                            "Vertex3f 0 0 2",
                            "End"}));
}

TEST_F(Shaded, MarkedPoints) {
  settings.shown.showChosenPoints = settings.shown.showAllPoints = true;
  settings.shown.firstChosenPoint = 2, settings.shown.lastChosenPoint = 4;
  settings.shown.chosenPoint = 3;
  for (const int i : {1, 2, 3}) model.PointMark(0, i) = 1;
  model.PointMark(0, 4) = 0;
  EXPECT_EQ(Drawn(), (Lines{"PointSize 3", "Begin Points", "Color3f 0.8 0.2 0.2", "Vertex3f 4 5 6",
                            "Color3f 1 1 0", "Vertex3f 7 8 9", "End",  //
                            "PointSize 2", "Begin Points", "Color3f 0.39 0.39 0.78", "Vertex3f 1 2 3",
                            "Vertex3f 4 5 6", "Vertex3f 7 8 9", "End"}));
}

TEST_F(Shaded, FaultEndsTheShape) {
  settings.shown.showWire = true;
  SetFaces(0, 3);
  model.Faces(0, 2).group = 42;
  model.Faces(0, 2).onoff = 0;
  EXPECT_TRUE(Raises(FaultKind::Subscript, [this] { DrawShaded(model, settings, recorder); }));
  EXPECT_EQ(CallText(recorder.calls().back()), "End");
  model.Faces(0, 2).group = 7;
  model.Faces(0, 3).corner2pt = 23001;
  recorder.Restart();
  EXPECT_TRUE(Raises(FaultKind::Subscript, [this] { DrawShaded(model, settings, recorder); }));
  // Nothing of the face with the missing corner; the two before it stand.
  const Lines lines = AllLines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Vertex3f 4 5 6"), 1);
  EXPECT_EQ(lines.back(), "End");
}

}  // namespace
}  // namespace pelorium
