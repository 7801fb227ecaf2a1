// The grid walk: corners, counts, the seam and the limits.
#include "geometry/grid.h"

#include <gtest/gtest.h>

#include "geometry/join_ends.h"
#include "geometry/sections_to_profiles.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

// 3 points a row and 3 rows: quads 1-2-4-5, 2-3-5-6 and the seam, twice.
TEST(Grid, OpenSeamLeavesTheLastColumnEmpty) {
  ModelStore model;
  BuildGridFaces(model, 0, 3, 3, Seam::Open);
  EXPECT_EQ(model.Part(0).maxfaces, 11);  // 3 * 2 * 2 - 1
  EXPECT_EQ(model.Part(0).minfaces, 1);
  EXPECT_EQ(FacesText(model, 0, 1, 7), "1 2 4 | 2 5 4 | 2 3 5 | 3 6 5 | 1 1 1 | 1 1 1 | 4 5 7");
  EXPECT_EQ(FacesText(model, 0, 12, 12), "1 1 1");
}

TEST(Grid, WrappedSeamLeadsOneRowUp) {
  ModelStore model;
  BuildGridFaces(model, 0, 3, 3, Seam::Wrapped);
  EXPECT_EQ(FacesText(model, 0, 5, 6), "3 4 6 | 4 7 6");
  // Only the face that is left out of the count names a point past the ninth.
  EXPECT_EQ(FacesText(model, 0, 11, 12), "6 7 9 | 7 10 9");
}

TEST(Grid, CountsOfKnownGrids) {
  struct Case {
    int width, rows, faces;
  };
  for (const Case& c :
       {Case{10, 10, 179}, {37, 4, 221}, {37, 36, 2589}, {20, 2, 39}, {5, 1, 0}, {5, 0, 0}, {0, 9, 0}}) {
    ModelStore model;
    BuildGridFaces(model, 1, c.width, c.rows, Seam::Open);
    EXPECT_EQ(model.Part(1).maxfaces, c.faces) << c.width << " x " << c.rows;
  }
}

TEST(Grid, StopsBeforeFace7700AndHoldsCorners) {
  ModelStore model;
  model.Faces(0, 7700).corner1pt = 77;
  BuildGridFaces(model, 0, 100, 100, Seam::Wrapped);
  EXPECT_EQ(model.Part(0).maxfaces, 7700);
  EXPECT_EQ(FacesText(model, 0, 7699, 7700), "3850 3851 3950 | 77 1 1");
  BuildGridFaces(model, 0, 22999, 3, Seam::Wrapped);
  EXPECT_EQ(FacesText(model, 0, 1, 3),
            "1 2 23000 | 2 23000 23000 | 2 3 23000");  // point 23001 does not exist
}

TEST(Grid, FacesKeepTheirGroupAndAreSwitchedOn) {
  ModelStore model;
  model.Faces(0, 2).group = 7;
  model.Faces(0, 2).onoff = 0;
  BuildGridFaces(model, 0, 3, 2, Seam::Open);
  EXPECT_EQ(model.Faces(0, 2).group, 7);
  EXPECT_EQ(model.Faces(0, 2).onoff, 1);
}

TEST(JoinRingEnds, EachRingsLastPointTakesItsFirstPlace) {
  ModelStore model;
  model.Part(0).maxpoints = 9;
  for (int i = 1; i <= 10; ++i) model.Points(0, i).X = i;
  JoinRingEnds(model, 0, 4);
  EXPECT_EQ(model.Points(0, 4).X, 1);
  EXPECT_EQ(model.Points(0, 8).X, 5);
  EXPECT_EQ(model.Points(0, 9).X, 9);
  JoinRingEnds(model, 0, 0);  // no width, no end
  EXPECT_EQ(model.Points(0, 9).X, 9);
}

TEST(ProfilesFromSections, ColumnsBecomeProfiles) {
  ModelStore model;
  model.Part(0).maxpoints = 6;
  for (int i = 1; i <= 6; ++i) model.Points(0, i).Z = i;
  model.Profile(1).count = 9;
  ProfilesFromSections(model, 0, 3, 2, 1);
  EXPECT_EQ(model.Profile(0).count, 2);
  EXPECT_EQ(ProfileText(model, 0, 0, 2), "1 1 1 | 1 1 4 | 1 1 4");  // the last is the pen's slot
  EXPECT_EQ(model.ProfilePts(1, 2).Z, 6);
  EXPECT_EQ(model.Profile(1).count, 9);  // the source stays
}

TEST(Grid, StandsBehindOtherFacesAndPoints) {
  ModelStore model;
  model.Faces(0, 3).corner1pt = 99;
  BuildGridFaces(model, 0, 3, 2, Seam::Open, {3, 10});
  EXPECT_EQ(model.Part(0).maxfaces, 3 + 5);
  EXPECT_EQ(FacesText(model, 0, 3, 4), "99 1 1 | 11 12 14");
  EXPECT_EQ(model.Faces(0, 7).corner2pt, 16);
}

}  // namespace
}  // namespace pelorium
