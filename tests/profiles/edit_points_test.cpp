// Edits of profile points, fetched profiles, gray levels and random points.
#include "profiles/edit_points.h"

#include <gtest/gtest.h>

#include "base/random_series.h"
#include "profiles/fetch_profiles.h"
#include "profiles/gray_to_z.h"
#include "profiles/random_profile.h"

namespace pelorium {
namespace {

using P = ProfilePointRec;

class EditPoints : public ::testing::Test {
 protected:
  // Point i of profile 0 at (i, 10 i, 100 i).
  explicit EditPoints(int count = 0) {
    for (int i = 0; i <= kMaxLayer; ++i) Put(i, {1.0 * i, 10.0 * i, 100.0 * i});
    model.Profile(0).count = static_cast<std::int16_t>(count);
  }
  void Put(int i, Vec3 at, int profile = 0) {
    P& p = model.ProfilePts(i, profile);
    p.X = at.X, p.Y = at.Y, p.Z = at.Z;
  }
  Vec3 At(int i, int profile = 0) const {
    const P& p = model.ProfilePts(i, profile);
    return {p.X, p.Y, p.Z};
  }

  ModelStore model;
};

TEST_F(EditPoints, MirrorGoesOnBehindTheHinge) {
  model.Profile(0).count = 20;
  MirrorProfile(model, 0, &P::X);
  EXPECT_EQ(model.Profile(0).count, 36);
  EXPECT_EQ(At(20), (Vec3{20, 200, 2000}));
  EXPECT_EQ(At(21), (Vec3{-19, 190, 1900}));
  EXPECT_EQ(At(36), (Vec3{-4, 40, 400}));

  model.Profile(0).count = 3;
  MirrorProfile(model, 0, &P::Z);
  EXPECT_EQ(model.Profile(0).count, 6);
  EXPECT_EQ(At(6), (Vec3{0, 0, 0}));
  EXPECT_EQ(At(5), (Vec3{1, 10, -100}));
  EXPECT_EQ(At(36), (Vec3{0, 0, 0}));  // the first point repeats to the end

  model.Profile(2).count = 4;
  MirrorProfiles(model, {2, 3}, &P::X);
  EXPECT_EQ(model.Profile(2).count, 36);
  EXPECT_EQ(model.Profile(3).count, 36);
  EXPECT_EQ(model.Profile(4).count, 0);
}

TEST_F(EditPoints, SpansBoundEveryEdit) {
  SwapAxes(model, 0, {2, 3}, &P::X, &P::Z);
  EXPECT_EQ(At(1).X, 1);
  EXPECT_EQ(At(2), (Vec3{200, 20, 2}));
  InvertAxis(model, 0, {35, 99}, &P::Y);
  EXPECT_EQ(At(36).Y, -360);
  SetAxis(model, 0, {9, 8}, &P::Z, 7);
  EXPECT_EQ(At(8).Z, 800);
  SpaceProfiles(model, {0, 2}, {4, 4}, &P::X, 12.5);
  EXPECT_EQ(At(4, 0).X, 0);
  EXPECT_EQ(At(4, 2).X, 25);
  EXPECT_EQ(At(5, 2).X, 0);
  SpaceProfiles(model, {2, 1}, {4, 4}, &P::X, 1);
  EXPECT_EQ(At(4, 2).X, 25);
}

TEST_F(EditPoints, CopyAndErase) {
  model.Profile(0).count = 5;
  CopyProfile(model, 0, {0, 1}, {1, 2});
  EXPECT_EQ(At(2, 1), (Vec3{2, 20, 200}));
  EXPECT_EQ(At(3, 1), (Vec3{0, 0, 0}));
  EXPECT_EQ(model.Profile(1).count, 5);
  EXPECT_EQ(At(2), (Vec3{2, 20, 200}));
  MatchPoints(model, 0, 7, 3);
  EXPECT_EQ(At(3), (Vec3{7, 70, 700}));
  CopyProfile(model, 0, {2, 2}, {2, 1});  // no points chosen: the counts stay too
  EXPECT_EQ(model.Profile(2).count, 0);
  ErasePoints(model, 0, {2, 1});
  EXPECT_EQ(model.Profile(0).count, 5);
  ErasePoints(model, 0, {3, 40});
  EXPECT_EQ(model.Profile(0).count, 0);
  EXPECT_EQ(At(2).X, 2);
  EXPECT_EQ(At(36), (Vec3{0, 0, 0}));
}

class Fetch : public EditPoints {
 protected:
  // Four rings of three points: point n at (n, 0, 0); one more stands behind them.
  Fetch() {
    for (int n = 1; n <= 13; ++n) model.Points(0, n).X = n;
    model.Part(0).maxpoints = 12;
    model.Part(0).count = 4;
  }
  const RingGrid rings{0, 3, 3};
};

TEST_F(Fetch, LayersBecomeProfilesWithTheirPenOnTheLastPoint) {
  GetLayers(model, rings, 2, 4, 35);
  EXPECT_EQ(At(0, 35).X, 7);
  EXPECT_EQ(At(2, 35).X, 9);
  EXPECT_EQ(At(3, 35).X, 9);
  EXPECT_EQ(model.Profile(35).count, 3);
  EXPECT_EQ(At(2, 36).X, 12);
  GetLayer(model, rings, 4, 1);  // behind the last point
  EXPECT_EQ(model.Profile(1).count, 0);
  GetLayer(model, {0, 3, 5}, 3, 1);
  EXPECT_EQ(model.Profile(1).count, 3);
}

TEST_F(Fetch, SidesRepeatTheirLastPointForTheMissingRing) {
  GetSides(model, rings, 2, 3, 5);
  EXPECT_EQ(At(0, 5).X, 2);
  EXPECT_EQ(At(3, 5).X, 11);
  EXPECT_EQ(At(4, 5).X, 11);
  EXPECT_EQ(model.Profile(5).count, 5);
  EXPECT_EQ(At(3, 6).X, 12);
  model.Part(0).count = 36;
  GetSides(model, rings, 1, 1, 7);
  EXPECT_EQ(At(36, 7).X, 10);
  EXPECT_EQ(model.Profile(7).count, 36);
}

TEST_F(EditPoints, GrayLevelsUnderThePoints) {
  Picture image(20, 10);
  image.SetPixels(std::vector<std::uint32_t>(200, Rgb(10, 20, 31)));  // gray 20
  Put(0, {5, -3.5, 1});                                               // column 5, row 3
  Put(1, {19, -9, 1});
  Put(2, {20, -9, 1});  // right of it
  Put(3, {5, 0.5, 1});  // above
  Put(4, {5, -3, 1});
  GrayToZ(model, 0, {0, 3}, {image, 0, 0, 0.25});
  EXPECT_EQ(At(0).Z, 5);
  EXPECT_EQ(At(1).Z, 5);
  EXPECT_EQ(At(2).Z, 1);
  EXPECT_EQ(At(3).Z, 1);
  EXPECT_EQ(At(4).Z, 1);
  GrayToZ(model, 0, {2, 3}, {image, -1, -1, 1});  // the pans move the image's corner
  EXPECT_EQ(At(2).Z, 1);
  EXPECT_EQ(At(3).Z, 20);
}

TEST_F(EditPoints, RandomPointsKeepTheOriginsPlane) {
  RandomSeries series, again;
  series.Seed(3);
  again.Seed(3);
  RandomProfile(model, 0, {1, 2}, ProfilePlane::XZ, {7, 8, 9}, 100, series);
  const double x = again.Next() * 100, z = again.Next() * 100;
  EXPECT_EQ(At(1), (Vec3{x, 8, z}));
  EXPECT_EQ(At(3), (Vec3{3, 30, 300}));
  EXPECT_EQ(model.Profile(0).count, 2);
  RandomProfile(model, 0, {1, 1}, ProfilePlane::ZY, {7, 8, 9}, 100, series);
  EXPECT_EQ(At(1).X, 7);
}

}  // namespace
}  // namespace pelorium
