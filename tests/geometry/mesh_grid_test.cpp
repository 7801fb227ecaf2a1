// Heights of the mesh grid.
#include "geometry/mesh_grid.h"

#include <gtest/gtest.h>

#include "support/harness.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

// 3 columns from number 1, 2 rows from number -1; 10 and 20 units apart, at height 5.
MeshGridSettings Small() {
  MeshGridSettings s;
  s.columns = 3, s.rows = 2, s.firstColumn = 1, s.firstRow = -1, s.spacingX = 10, s.spacingY = 20,
  s.height = 5;
  return s;
}

std::string Heights(ModelStore& model, const MeshGridSettings& settings) {
  LayMeshGrid(model, settings);
  std::string text;
  for (int i = 1; i <= 7; ++i) {
    const std::string place = PointsText(model, 0, i, i);
    text += (i > 1 ? " " : "") + place.substr(place.rfind(' ') + 1);
  }
  return text;
}

TEST(MeshGrid, LaysRowsOfColumnsAndASparePoint) {
  ModelStore model;
  EXPECT_EQ(LayMeshGrid(model, Small()), (LaidGrid{3, 2}));
  EXPECT_EQ(PointsText(model, 0, 1, 8),
            "10 -20 5 | 20 -20 5 | 30 -20 5 | 10 0 5 | 20 0 5 | 30 0 5 | 30 0 5 | 1 1 1");
}

TEST(MeshGrid, RaisesByWavesTiltsCurvesAndProfiles) {
  ModelStore model;
  PutProfile(model, 4, 0, {{0, 0, 1}, {0, 0, 2}, {0, 0, 3}});
  model.ProfilePts(1, 4).addZAmt1 = 10;
  model.ProfilePts(2, 4).addZAmt2 = 100;
  MeshGridSettings sine = Small(), cosine = Small(), first = Small(), second = Small(), general = Small();
  sine.alongRows = {1.5, 100, 2, 0.5};  // 100 sin(-1.5) - 2 + 0.5 + 5 in row -1
  cosine.alongColumns = {1, 10, 0, 1};  // 10 cos n + n^2 + 5
  first.rowTimesColumn = 4;             // row 1: 10 times 1, 2, 3
  second.columnTimesRow = 4;            // column 2: 100 times 1, then 2
  general.rowProfile = general.columnProfile = 4, general.rowFactor = 0.5, general.columnFactor = -1;
  EXPECT_EQ(Heights(model, sine), "-96.2495 -96.2495 -96.2495 5 5 5 5");
  EXPECT_EQ(Heights(model, cosine), "11.403 4.8385 4.1001 11.403 4.8385 4.1001 4.1001");
  EXPECT_EQ(Heights(model, first), "5 5 5 15 25 35 35");
  EXPECT_EQ(Heights(model, second), "5 5 105 5 5 205 205");
  EXPECT_EQ(Heights(model, general), "4.5 3.5 2.5 5 4 3 3");
}

TEST(MeshGrid, LeavesOutWhatDoesNotFit) {
  ModelStore model;
  MeshGridSettings s = Small();
  s.columns = 1000, s.rows = 24, s.columnProfile = 36, s.columnFactor = 1;
  model.ProfilePts(36, 36).Z = 7;  // the columns past 36 take layer 36
  EXPECT_EQ(LayMeshGrid(model, s), (LaidGrid{1000, 23}));
  EXPECT_EQ(PointsText(model, 0, 22999, kMaxPoints), "9990 420 12 | 10000 420 12");
  s.rows = 2, s.spacingX = 1e307;
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { LayMeshGrid(model, s); }));
  EXPECT_EQ(PointsText(model, 0, 1, 1), "10 -20 5");
}

}  // namespace
}  // namespace pelorium
