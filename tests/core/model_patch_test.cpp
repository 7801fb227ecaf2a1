// What the tables keep of changes, to the bit.
#include "core/model_patch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <utility>

#include "core/model_store.h"
#include "core/part_operations.h"

namespace pelorium {
namespace {

class Patches : public testing::Test {
 protected:
  Patches() { model->BeginChanges(); }
  std::unique_ptr<ModelStore> model = std::make_unique<ModelStore>();
  const ModelStore& read = *model;
};

TEST_F(Patches, ReadingLeavesNoMark) {
  for (const PointRec& point : PointRange(read, 0, 1, kMaxPoints)) ASSERT_EQ(point.X, 1);
  EXPECT_EQ(read.Faces(3, 7700).group + read.PointMark(1, 2) + read.Part(0).maxfaces, 0);
  EXPECT_FALSE(model->hasMarks());
  model->Part(1).maxfaces = 0;
  EXPECT_TRUE(model->hasMarks());
  EXPECT_EQ(model->Changes(), ModelChange::None);
}

TEST_F(Patches, TellHowFarAChangeGoes) {
  model->Faces(0, 5).c2Y = 3;
  EXPECT_EQ(model->Changes(), ModelChange::Corners);
  model->Points(kTempPart, 9).X = 3;
  EXPECT_EQ(model->Changes(), ModelChange::Elsewhere);
  model->Points(1, 23000).Z = 3;
  EXPECT_EQ(model->Changes(), ModelChange::Model);
}

// -0, a NaN, texts and the last records of a table.
TEST_F(Patches, ChangeSidesToTheBit) {
  model->Points(0, 1).X = -0.0;
  model->Points(3, 23000).u = std::numeric_limits<double>::quiet_NaN();
  model->MaterialGroups(41).GroupName = "arm";
  model->Part(2).grid = {4, 5};
  for (FaceRec& face : FaceRange(*model, 1, 60, 130)) face.group = 7;
  model->ProfilePts(36, 36).multZb = 2;
  model->Profile(4).count = 9;
  ModelPatch patch = model->TakeChanges();
  EXPECT_EQ(std::get<TablePatch<FaceRec>>(patch).records.size(), 71U);
  EXPECT_EQ(std::get<TablePatch<PointRec>>(patch).records.size(), 2U);
  model->Swap(patch);
  EXPECT_EQ(read.Points(0, 1).X, 1);
  EXPECT_EQ(read.Points(3, 23000).u, 1);
  EXPECT_EQ(read.MaterialGroups(41).GroupName, "");
  EXPECT_FALSE(read.Part(2).grid.has_value());
  EXPECT_EQ(read.Faces(1, 130).group + read.Profile(4).count, 0);
  EXPECT_EQ(model->Changes(), ModelChange::None);
  model->Swap(patch);
  EXPECT_TRUE(std::signbit(read.Points(0, 1).X));
  EXPECT_TRUE(std::isnan(read.Points(3, 23000).u));
  EXPECT_EQ(read.MaterialGroups(41).GroupName, "arm");
  EXPECT_EQ(read.Faces(1, 60).group, 7);
  EXPECT_EQ(read.ProfilePts(36, 36).multZb, 2);
}

// What both have stays the first one's.
TEST_F(Patches, JoinByRecord) {
  model->Faces(0, 10).group = 1;
  model->Faces(0, 200).group = 1;
  ModelPatch first = model->TakeChanges();
  model->BeginChanges();
  for (const int face : {9, 10, 300}) model->Faces(0, face).group = 2;
  Join(first, model->TakeChanges());
  model->Swap(first);
  for (const int face : {9, 10, 200, 300}) EXPECT_EQ(read.Faces(0, face).group, 0) << face;
  model->Swap(first);
  EXPECT_EQ(read.Faces(0, 10).group, 2);
  EXPECT_EQ(read.Faces(0, 200).group, 1);
}

// Faces that have it right are not written.
TEST_F(Patches, CornersThatFollowAlreadyLeaveNoMark) {
  model->Part(0).maxfaces = 100;
  SyncFaceCorners(*model, 0);
  model->BeginChanges();
  SyncFaceCorners(*model, 0);
  EXPECT_FALSE(model->hasMarks());
}

}  // namespace
}  // namespace pelorium
