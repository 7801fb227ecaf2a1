// Edits of a block of profile points.
#include "profiles/edit_profile_range.h"

#include <gtest/gtest.h>

namespace pelorium {
namespace {

using enum Axis;

class ProfileBlockEdit : public ::testing::Test {
 protected:
  ProfilePointRec& At(int point, int profile) { return model.ProfilePts(point, profile); }

  ModelStore model;
  ProfileBlock block{2, 4, 1, 5, 2};  // profiles 2, 3, 4 and points 1, 3, 5
};

TEST_F(ProfileBlockEdit, ReachesTheBlockAndNothingElse) {
  MoveBlock(model, block, {Y}, 10);
  EXPECT_EQ(At(1, 2).Y, 10);
  EXPECT_EQ(At(5, 4).Y, 10);
  EXPECT_EQ(At(5, 4).X, 0);
  for (const double y : {At(2, 2).Y, At(0, 3).Y, At(6, 3).Y, At(1, 1).Y, At(1, 5).Y}) EXPECT_EQ(y, 0);
  block.pointStep = 9;
  MoveBlock(model, block, {Z}, 1);
  EXPECT_EQ(At(1, 2).Z, 1);
  EXPECT_EQ(At(3, 2).Z, 0);
  block.firstProfile = 36;
  MoveBlock(model, block, {X}, 1);
  EXPECT_EQ(At(1, 36).X, 0);
}

TEST_F(ProfileBlockEdit, ScalesAboutZeroOrAPivot) {
  At(1, 2).X = 100, At(1, 2).Y = 100, At(1, 2).Z = 100;
  ScaleBlock(model, block, {X, Z}, 1.5);
  EXPECT_EQ(At(1, 2).X, 150);
  EXPECT_EQ(At(1, 2).Y, 100);
  ScaleBlock(model, block, {Z}, 2, {0, 0, 50});
  EXPECT_EQ(At(1, 2).X, 150);
  EXPECT_EQ(At(1, 2).Z, 250);
}

// A quarter turn takes p to -q and q to p.
TEST_F(ProfileBlockEdit, TurnsAboutThePivotInItsPlane) {
  At(1, 2).X = 30, At(1, 2).Y = 7, At(1, 2).Z = 20;
  TurnBlock(model, block, X, Z, 90, {10, 0, 20});
  EXPECT_NEAR(At(1, 2).X, 10, 1e-5);
  EXPECT_EQ(At(1, 2).Y, 7);
  EXPECT_NEAR(At(1, 2).Z, 0, 1e-5);
}

TEST_F(ProfileBlockEdit, CopiesAndSpacesEveryPoint) {
  At(2, 3).X = 5, At(2, 3).Y = 6;
  At(2, 3).rotateX = 9;
  CopyToBlock(model, block, 3);
  SpaceBlock(model, block, Y, 10);
  EXPECT_EQ(At(2, 2).Y, 6);
  EXPECT_EQ(At(2, 3).Y, 16);
  EXPECT_EQ(At(2, 4).Y, 26);
  EXPECT_EQ(At(2, 4).X, 5);
  EXPECT_EQ(At(2, 4).rotateX, 0);  // settings stay
  EXPECT_EQ(At(6, 4).Y, 0);
}

}  // namespace
}  // namespace pelorium
