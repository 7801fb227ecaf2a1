// Edits of profile points, fetched profiles, gray levels and random points.
#include "profiles/edit_points.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "base/random_series.h"
#include "profiles/fetch_profiles.h"
#include "profiles/gray_to_z.h"
#include "profiles/random_profile.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

using P = ProfilePointRec;

class EditPoints : public ::testing::Test {
 protected:
  // Point i of profile 0 at (i, 10 i, 100 i).
  EditPoints() {
    for (int i = 0; i <= kMaxLayer; ++i) PutProfile(model, 0, i, {{1.0 * i, 10.0 * i, 100.0 * i}});
  }
  std::string At(int i, int profile = 0) const { return ProfileText(model, profile, i, i); }
  std::string At(int first, int last, int profile) const { return ProfileText(model, profile, first, last); }
  int Count(int profile) const { return model.Profile(profile).count; }

  ModelStore model;
};

TEST_F(EditPoints, MirrorGoesOnBehindTheHinge) {
  model.Profile(0).count = 20;
  MirrorProfile(model, 0, &P::X);
  EXPECT_EQ(Count(0), 36);
  EXPECT_EQ(At(20, 21, 0), "20 200 2000 | -19 190 1900");
  EXPECT_EQ(At(36), "-4 40 400");

  model.Profile(0).count = 3;
  MirrorProfile(model, 0, &P::Z);
  EXPECT_EQ(Count(0), 6);
  EXPECT_EQ(At(5, 6, 0), "1 10 -100 | 0 0 0");
  EXPECT_EQ(At(36), "0 0 0");  // the first point repeats to the end

  model.Profile(2).count = 4;
  MirrorProfiles(model, {2, 3}, &P::X);
  EXPECT_EQ(Count(2), 36);
  EXPECT_EQ(Count(3), 36);
  EXPECT_EQ(Count(4), 0);
}

TEST_F(EditPoints, SpansBoundEveryEdit) {
  SwapAxes(model, 0, {2, 3}, &P::X, &P::Z);
  EXPECT_EQ(At(1, 4, 0), "1 10 100 | 200 20 2 | 300 30 3 | 4 40 400");
  InvertAxis(model, 0, {35, 99}, &P::Y);
  EXPECT_EQ(At(34, 36, 0), "34 340 3400 | 35 -350 3500 | 36 -360 3600");
  SetAxis(model, 0, {9, 8}, &P::Z, 7);
  EXPECT_EQ(At(8, 9, 0), "8 80 800 | 9 90 900");
  SetAxis(model, 0, {8, 8}, &P::Z, 7);
  EXPECT_EQ(At(7, 9, 0), "7 70 700 | 8 80 7 | 9 90 900");
  SpaceProfiles(model, {0, 2}, {4, 4}, &P::X, 12.5);
  EXPECT_EQ(At(4) + ", " + At(3, 5, 2), "0 40 400, 0 0 0 | 25 0 0 | 0 0 0");
  SpaceProfiles(model, {2, 1}, {4, 4}, &P::X, 1);
  EXPECT_EQ(At(4, 2), "25 0 0");
}

TEST_F(EditPoints, CopyAndErase) {
  model.Profile(0).count = 5;
  CopyProfile(model, 0, {0, 1}, {1, 2});
  EXPECT_EQ(At(1, 3, 1), "1 10 100 | 2 20 200 | 0 0 0");
  EXPECT_EQ(Count(1), 5);
  EXPECT_EQ(At(2), "2 20 200");
  MatchPoints(model, 0, 7, 3);
  EXPECT_EQ(At(3), "7 70 700");
  CopyProfile(model, 0, {2, 2}, {2, 1});  // no points chosen: the counts stay too
  EXPECT_EQ(Count(2), 0);
  ErasePoints(model, 0, {2, 1});
  EXPECT_EQ(Count(0), 5);
  ErasePoints(model, 0, {3, 40});
  EXPECT_EQ(Count(0), 0);
  EXPECT_EQ(At(2, 3, 0), "2 20 200 | 0 0 0");
  EXPECT_EQ(At(36), "0 0 0");
}

class Fetch : public EditPoints {
 protected:
  // Four rings of three points: point n at (n, 0, 0); one more stands behind them.
  Fetch() {
    for (int n = 1; n <= 13; ++n) PutPoints(model, 0, n, {{1.0 * n, 0, 0}});
    model.Part(0).maxpoints = 12;
    model.Part(0).count = 4;
  }
  const RingGrid rings{0, 3, 3};
};

TEST_F(Fetch, LayersBecomeProfilesWithTheirPenOnTheLastPoint) {
  GetLayers(model, rings, 2, 4, 35);
  EXPECT_EQ(At(0, 3, 35), "7 0 0 | 8 0 0 | 9 0 0 | 9 0 0");
  EXPECT_EQ(Count(35), 3);
  EXPECT_EQ(At(2, 36), "12 0 0");
  GetLayer(model, rings, 4, 1);  // behind the last point
  EXPECT_EQ(Count(1), 0);
  GetLayer(model, {0, 3, 5}, 3, 1);
  EXPECT_EQ(Count(1), 3);
}

TEST_F(Fetch, SidesRepeatTheirLastPointForTheMissingRing) {
  GetSides(model, rings, 2, 3, 5);
  EXPECT_EQ(At(0, 4, 5), "2 0 0 | 5 0 0 | 8 0 0 | 11 0 0 | 11 0 0");
  EXPECT_EQ(Count(5), 5);
  EXPECT_EQ(At(3, 6), "12 0 0");
  model.Part(0).count = 36;
  GetSides(model, rings, 1, 1, 7);
  EXPECT_EQ(At(36, 7), "10 0 0");
  EXPECT_EQ(Count(7), 36);
}

TEST_F(EditPoints, GrayLevelsUnderThePoints) {
  Picture image(20, 10);
  image.SetPixels(std::vector<std::uint32_t>(200, Rgb(10, 20, 31)));  // gray 20
  // Column 5 and row 3; the last pixel; right of it; above; and one outside the span.
  PutProfile(model, 0, 0, {{5, -3.5, 1}, {19, -9, 1}, {20, -9, 1}, {5, 0.5, 1}, {5, -3, 1}});
  GrayToZ(model, 0, {0, 3}, {image, 0, 0, 0.25});
  EXPECT_EQ(At(0, 4, 0), "5 -3.5 5 | 19 -9 5 | 20 -9 1 | 5 0.5 1 | 5 -3 1");
  GrayToZ(model, 0, {2, 3}, {image, -1, -1, 1});  // the pans move the image's corner
  EXPECT_EQ(At(2, 3, 0), "20 -9 1 | 5 0.5 20");
}

TEST_F(EditPoints, RandomPointsKeepTheOriginsPlane) {
  RandomSeries series, again;
  series.Seed(3);
  again.Seed(3);
  RandomProfile(model, 0, {1, 2}, ProfilePlane::XZ, {7, 8, 9}, 100, series);
  const double x = again.Next() * 100, z = again.Next() * 100;
  EXPECT_EQ(At(1), RoundedForm(x, 4) + " 8 " + RoundedForm(z, 4));
  EXPECT_EQ(At(3), "3 30 300");
  EXPECT_EQ(Count(0), 2);
  RandomProfile(model, 0, {1, 1}, ProfilePlane::ZY, {7, 8, 9}, 100, series);
  EXPECT_EQ(model.ProfilePts(1, 0).X, 7);
}

}  // namespace
}  // namespace pelorium
