// The counting rules of free faces.
#include "facetools/free_faces.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/fault.h"

namespace pelorium {
namespace {

using Corners = std::vector<std::vector<int>>;

class FreeFaces : public testing::Test {
 protected:
  using Appender = void (*)(ModelStore&, const FreeFaceSettings&);

  // The corners of the faces that `append` makes behind the two that stand already.
  Corners Made(Appender append) {
    PartHeader& part = model.Part(1);
    part.maxfaces = 2;
    settings.part = 1;
    append(model, settings);
    Corners corners;
    for (const FaceRec& face : FaceRange(model, 1, 3, part.maxfaces)) {
      corners.push_back({face.corner1pt, face.corner2pt, face.corner3pt});
      EXPECT_EQ(face.onoff, 1);
    }
    return corners;
  }

  ModelStore model;
  FreeFaceSettings settings;
};

TEST_F(FreeFaces, Fans) {
  settings.fanStart = 33;
  settings.fanFaces = 2;
  EXPECT_EQ(Made(AppendEndCap), (Corners{{33, 34, 35}, {33, 35, 36}}));
  settings.radiatingStart = 7;
  settings.runFaces = 1;
  EXPECT_EQ(Made(AppendRadiating), (Corners{{7, 8, 9}}));
  settings.body = {4, 5}, settings.capFaces = 2;
  EXPECT_EQ(Made(AppendBottomCap), (Corners{{1, 2, 3}, {1, 3, 4}}));
  EXPECT_EQ(Made(AppendTopCap), (Corners{{17, 18, 19}, {17, 19, 20}}));  // row 4 starts at 4 * 4 + 1
}

TEST_F(FreeFaces, SideCapsStayOnTheLastRow) {
  settings.body = {10, 4};
  EXPECT_EQ(Made(AppendStartSideCap), (Corners{{1, 11, 21}, {1, 21, 31}, {1, 31, 31}, {1, 31, 31}}));
  EXPECT_EQ(Made(AppendEndSideCap), (Corners{{10, 20, 30}, {10, 30, 40}, {10, 40, 40}, {10, 40, 40}}));
  settings.body.rows = 0;
  EXPECT_TRUE(Made(AppendStartSideCap).empty());
}

TEST_F(FreeFaces, Sides) {
  settings.pointsPerLayer = 10;
  settings.capSide = 3, settings.capFirstLayer = 1, settings.capLastLayer = 4;
  EXPECT_EQ(Made(AppendSideCap), (Corners{{13, 23, 33}, {13, 33, 43}}));
  settings.pieceSide = 2, settings.pieceOffset = 5;
  EXPECT_EQ(Made(AppendSidePiece), (Corners{{2, 7, 12}, {7, 17, 12}, {12, 17, 22}, {17, 27, 22}}));
}

TEST_F(FreeFaces, DisjoinedFacesHavePointsOfTheirOwn) {
  settings.runStart = 5, settings.runFaces = 2;
  EXPECT_EQ(Made(AppendDisjoined), (Corners{{5, 6, 7}, {8, 9, 10}}));
}

TEST_F(FreeFaces, StripsTakeWholeRowsOnly) {
  model.Part(1).maxpoints = 8;
  settings.stripWidth = 3;
  EXPECT_EQ(Made(AppendStrip), (Corners{{1, 2, 4}, {2, 5, 4}, {2, 3, 5}, {3, 6, 5}}));
  settings.stripIsClosed = true;
  EXPECT_EQ(Made(AppendStrip), (Corners{{1, 2, 4}, {2, 5, 4}, {2, 3, 5}, {3, 6, 5}, {3, 1, 6}, {1, 4, 6}}));
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

}  // namespace
}  // namespace pelorium
