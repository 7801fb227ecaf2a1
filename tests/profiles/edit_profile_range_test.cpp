// Edits of a block of profile points.
#include "profiles/edit_profile_range.h"

#include <gtest/gtest.h>

#include "support/model_text.h"

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
  for (int profile = 1; profile <= 5; ++profile) {
    EXPECT_EQ(ProfileText(model, profile, 0, 6),
              profile >= 2 && profile <= 4 ? "0 0 0 | 0 10 0 | 0 0 0 | 0 10 0 | 0 0 0 | 0 10 0 | 0 0 0"
                                           : "0 0 0 | 0 0 0 | 0 0 0 | 0 0 0 | 0 0 0 | 0 0 0 | 0 0 0");
  }
  block.pointStep = 9;
  MoveBlock(model, block, {Z}, 1);
  EXPECT_EQ(ProfileText(model, 2, 1, 3), "0 10 1 | 0 0 0 | 0 10 0");
  block.firstProfile = 36;
  MoveBlock(model, block, {X}, 1);
  EXPECT_EQ(At(1, 36).X, 0);
}

TEST_F(ProfileBlockEdit, ScalesAboutZeroOrAPivot) {
  PutProfile(model, 2, 1, {{100, 100, 100}});
  ScaleBlock(model, block, {X, Z}, 1.5);
  EXPECT_EQ(ProfileText(model, 2, 1, 1), "150 100 150");
  ScaleBlock(model, block, {Z}, 2, {0, 0, 50});
  EXPECT_EQ(ProfileText(model, 2, 1, 1), "150 100 250");
}

// A quarter turn takes p to -q and q to p.
TEST_F(ProfileBlockEdit, TurnsAboutThePivotInItsPlane) {
  PutProfile(model, 2, 1, {{30, 7, 20}});
  TurnBlock(model, block, X, Z, 90, {10, 0, 20});
  EXPECT_EQ(ProfileText(model, 2, 1, 1), "10 7 0");
}

TEST_F(ProfileBlockEdit, CopiesAndSpacesEveryPoint) {
  PutProfile(model, 3, 2, {{5, 6, 0}});
  At(2, 3).rotateX = 9;
  CopyToBlock(model, block, 3);
  SpaceBlock(model, block, Y, 10);
  EXPECT_EQ(ProfileText(model, 2, 2, 2), "5 6 0");
  EXPECT_EQ(ProfileText(model, 3, 2, 2), "5 16 0");
  EXPECT_EQ(ProfileText(model, 4, 2, 2), "5 26 0");
  EXPECT_EQ(At(2, 4).rotateX, 0);  // settings stay
  EXPECT_EQ(At(6, 4).Y, 0);
}

}  // namespace
}  // namespace pelorium
