// Drawing a profile by clicks.
#include "profiles/draw_point.h"

#include <gtest/gtest.h>

namespace pelorium {
namespace {

TEST(DrawProfilePoint, EachPlaneSetsItsOwnAxes) {
  ModelStore model;
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::XZ, 1, 2, 3}), 0);
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::XY, 4, 5, 6}), 1);
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::ZY, 7, 8, 9}), 2);
  const auto position = [&](int layer) {
    const ProfilePointRec& p = model.ProfilePts(layer, 0);
    return Vec3{p.X, p.Y, p.Z};
  };
  EXPECT_EQ(position(0), (Vec3{1, 3, 2}));
  EXPECT_EQ(position(1), (Vec3{4, 5, 6}));
  EXPECT_EQ(position(2), (Vec3{9, 8, 7}));
  EXPECT_EQ(position(3), (Vec3{9, 8, 7}));  // the pen follows
  EXPECT_EQ(model.Profile(0).count, 3);
}

TEST(DrawProfilePoint, OpenClickMovesThePenOnly) {
  ModelStore model;
  DrawProfilePoint(model, 4, {ProfilePlane::XZ, 1, 1, 0, false});
  EXPECT_EQ(model.Profile(4).count, 0);
  EXPECT_EQ(model.ProfilePts(0, 4).X, 1);
  EXPECT_EQ(model.ProfilePts(1, 4).X, 0);
}

TEST(DrawProfilePoint, The38thClickWritesOverTheLastPoint) {
  ModelStore model;
  for (int click = 1; click <= 38; ++click) {
    DrawProfilePoint(model, 36, {ProfilePlane::XZ, static_cast<double>(click), 0, 0});
  }
  EXPECT_EQ(model.Profile(36).count, 36);
  EXPECT_EQ(model.ProfilePts(36, 36).X, 38);
  EXPECT_EQ(model.ProfilePts(35, 36).X, 36);
}

}  // namespace
}  // namespace pelorium
