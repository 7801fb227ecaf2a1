// Drawing a profile by clicks.
#include "profiles/draw_point.h"

#include <gtest/gtest.h>

#include "support/model_text.h"

namespace pelorium {
namespace {

TEST(DrawProfilePoint, EachPlaneSetsItsOwnAxesAndThePenFollows) {
  ModelStore model;
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::XZ, 1, 2, 3}), 0);
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::XY, 4, 5, 6}), 1);
  EXPECT_EQ(DrawProfilePoint(model, 0, {ProfilePlane::ZY, 7, 8, 9}), 2);
  EXPECT_EQ(ProfileText(model, 0, 0, 3), "1 3 2 | 4 5 6 | 9 8 7 | 9 8 7");
  EXPECT_EQ(model.Profile(0).count, 3);
  DrawProfilePoint(model, 4, {ProfilePlane::XZ, 1, 1, 0, false});  // an open click moves the pen only
  EXPECT_EQ(model.Profile(4).count, 0);
  EXPECT_EQ(ProfileText(model, 4, 0, 1), "1 0 1 | 0 0 0");
}

TEST(DrawProfilePoint, The38thClickWritesOverTheLastPoint) {
  ModelStore model;
  for (int click = 1; click <= 38; ++click) {
    DrawProfilePoint(model, 36, {ProfilePlane::XZ, static_cast<double>(click), 0, 0});
  }
  EXPECT_EQ(model.Profile(36).count, 36);
  EXPECT_EQ(ProfileText(model, 36, 35, 36), "36 0 0 | 38 0 0");
}

}  // namespace
}  // namespace pelorium
