// The counting rules of free faces.
#include "facetools/free_faces.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "facetools/choose_faces.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class FreeFaces : public testing::Test {
 protected:
  using Appender = void (*)(ModelStore&, const FreeFaceSettings&);

  // The corners of the faces that `append` makes behind the two that stand already.
  std::string Made(Appender append) {
    PartHeader& part = model.Part(1);
    part.maxfaces = 2;
    settings.part = 1;
    append(model, settings);
    for (const FaceRec& face : FaceRange(model, 1, 3, part.maxfaces)) EXPECT_EQ(face.onoff, 1);
    return FacesText(model, 1, 3, part.maxfaces);
  }

  ModelStore model;
  FreeFaceSettings settings;
};

TEST_F(FreeFaces, Fans) {
  settings.fanStart = 33;
  settings.fanFaces = 2;
  EXPECT_EQ(Made(AppendEndCap), "33 34 35 | 33 35 36");
  settings.radiatingStart = 7;
  settings.runFaces = 1;
  EXPECT_EQ(Made(AppendRadiating), "7 8 9");
  settings.body = {4, 5}, settings.capFaces = 2;
  EXPECT_EQ(Made(AppendBottomCap), "1 2 3 | 1 3 4");
  EXPECT_EQ(Made(AppendTopCap), "17 18 19 | 17 19 20");  // row 4 starts at 4 * 4 + 1
}

TEST_F(FreeFaces, SideCapsStayOnTheLastRow) {
  settings.body = {10, 4};
  EXPECT_EQ(Made(AppendStartSideCap), "1 11 21 | 1 21 31 | 1 31 31 | 1 31 31");
  EXPECT_EQ(Made(AppendEndSideCap), "10 20 30 | 10 30 40 | 10 40 40 | 10 40 40");
  settings.body.rows = 0;
  EXPECT_EQ(Made(AppendStartSideCap), "");
}

TEST_F(FreeFaces, Sides) {
  settings.pointsPerLayer = 10;
  settings.capSide = 3, settings.capFirstLayer = 1, settings.capLastLayer = 4;
  EXPECT_EQ(Made(AppendSideCap), "13 23 33 | 13 33 43");
  settings.pieceSide = 2, settings.pieceOffset = 5;
  EXPECT_EQ(Made(AppendSidePiece), "2 7 12 | 7 17 12 | 12 17 22 | 17 27 22");
}

TEST_F(FreeFaces, DisjoinedFacesHavePointsOfTheirOwn) {
  settings.runStart = 5, settings.runFaces = 2;
  EXPECT_EQ(Made(AppendDisjoined), "5 6 7 | 8 9 10");
}

TEST_F(FreeFaces, StripsTakeWholeRowsOnly) {
  model.Part(1).maxpoints = 8;
  settings.stripWidth = 3;
  EXPECT_EQ(Made(AppendStrip), "1 2 4 | 2 5 4 | 2 3 5 | 3 6 5");
  settings.stripIsClosed = true;
  EXPECT_EQ(Made(AppendStrip), "1 2 4 | 2 5 4 | 2 3 5 | 3 6 5 | 3 1 6 | 1 4 6");
  settings.stripWidth = 0;
  EXPECT_THROW(Made(AppendStrip), Fault);
}

TEST_F(FreeFaces, LimitsOfTheTables) {
  AppendFan(model, 0, kMaxPoints - 1, 2);
  EXPECT_EQ(model.Faces(0, 1).corner3pt, 23000);
  EXPECT_EQ(model.Faces(0, 2).corner3pt, 23000);
  model.Part(0).maxfaces = 7698;
  AppendFan(model, 0, 1, 5);
  EXPECT_EQ(model.Part(0).maxfaces, 7700);
  EXPECT_EQ(model.Faces(0, 7700).corner3pt, 4);
}

// Points 2, 5 and 8: the step counts from the range's start.
TEST_F(FreeFaces, ChosenFacesHaveAllTheirCornersAmongTheChosenPoints) {
  AppendFan(model, 0, 2, 4);  // 2 3 4, 2 4 5, 2 5 6, 2 6 7
  model.Faces(0, 5) = {.corner1pt = 8, .corner2pt = 2, .corner3pt = 5};
  model.Faces(0, 6) = {.corner1pt = 8, .corner2pt = 2, .corner3pt = 7};
  model.Part(0).maxfaces = 6;
  for (int i = 1; i <= 8; ++i) model.PointMark(0, i) = i == 3 ? 0 : 1;
  GroupChosenFaces(model, {0, 2, 8, 3}, 7);
  SwitchChosenFaces(model, {0, 2, 5, 1}, false);
  std::string groups, switches;
  for (const FaceRec& face : FaceRange(model, 0, 1, 6))
    groups += std::to_string(face.group), switches += std::to_string(face.onoff);
  EXPECT_EQ(groups, "000070");
  EXPECT_EQ(switches, "101111");
  EXPECT_EQ(GroupOfPoint(model, 0, 6), 0);
  EXPECT_EQ(GroupOfPoint(model, 0, 9), std::nullopt);
  GroupFaceRange(model, 0, 3, 4, 5);
  EXPECT_EQ(GroupOfPoint(model, 0, 6), 5);
}

}  // namespace
}  // namespace pelorium
