// The points of an extrude, worked out by hand.
#include "geometry/extrude.h"

#include <gtest/gtest.h>

#include "base/fault.h"

namespace pelorium {
namespace {

class Extrude : public ::testing::Test {
 protected:
  Extrude() {
    settings.lastSection = 3;
    Draw(0, {10, 1, 4});
    Draw(1, {20, 2, 5});
    Draw(2, {30, 3, 6});
    Draw(3, {40, 4, 7});
  }
  void Draw(int point, Vec3 at, int profile = 0) {
    ProfilePointRec& p = model.ProfilePts(point, profile);
    p.X = at.X, p.Y = at.Y, p.Z = at.Z;
  }
  Vec3 Point(int number) const {
    const PointRec& p = model.Points(0, number);
    return {p.X, p.Y, p.Z};
  }
  void ExpectNear(int number, Vec3 at) const {
    const Vec3 p = Point(number);
    EXPECT_NEAR(p.X, at.X, 1e-4) << number;
    EXPECT_NEAR(p.Y, at.Y, 1e-4) << number;
    EXPECT_NEAR(p.Z, at.Z, 1e-4) << number;
  }

  ModelStore model;
  ExtrudeSettings settings;
};

TEST_F(Extrude, DefaultsStackTheDrawnRingAlongY) {
  model.PointMark(0, 5) = 0;
  EXPECT_EQ(LayExtrudedPoints(model, settings), 1 + 13 * 4);
  EXPECT_EQ(Point(1), (Vec3{10, 0, 4}));
  EXPECT_EQ(Point(5), (Vec3{10, 10, 4}));
  EXPECT_EQ(Point(13 * 4), (Vec3{40, 120, 7}));
  EXPECT_EQ(model.PointMark(0, 5), 1);
  settings.firstSection = 2;
  EXPECT_EQ(LayExtrudedPoints(model, settings), 1 + 13 * 2);
  EXPECT_EQ(Point(3), (Vec3{30, 10, 6}));
}

// Layer 1, section 2 of a profile with every term but the turns:
// X = 30 + 1 (path) + 2 * 5 + 3 * 7 = 62, * 2 * 2 = 248, + 8 + 9 = 265, * 0.5 = 132.5, + 100 = 232.5, * 2 =
// 465. Y = 10 + 2 (path) + 4 * 6 + 5 * 8 = 76, * 3 = 228, - 8 - 4 = 216, * 0.25 = 54, + 1 = 55, * 3 = 165. Z
// = 6 + 3 (path) + 6 * 4 + 7 * 9 = 96, * 2 * 3 = 576, flipped -576, * 2 = -1152, + 2 + 4 = -1146, flipped
// 1146, negated -1146, + 6 = -1140, * 0.5 = -570, flipped 570.
TEST_F(Extrude, EveryTermInItsOrder) {
  ProfileHeader& h = model.Profile(0);
  h.pathProfileX = h.pathProfileY = h.pathProfileZ = 5;
  h.addProfile1X = 6, h.addProfile1Y = 7, h.addProfile1Z = 8;
  h.addProfile2X = 9, h.addProfile2Y = 10, h.addProfile2Z = 11;
  h.genMoveX = 100, h.genMoveY = 1, h.genMoveZ = 6;
  h.genMultX = 2, h.genMultY = 3, h.genMultZ = 0.5;
  Draw(1, {1, 2, 3}, 5);
  Draw(1, {5, 99, 99}, 6);
  Draw(2, {99, 6, 99}, 7);
  Draw(1, {99, 99, 4}, 8);
  Draw(1, {7, 99, 99}, 9);
  Draw(2, {99, 8, 99}, 10);
  Draw(1, {99, 99, 9}, 11);
  ProfilePointRec& layer = model.ProfilePts(1, 0);
  layer.addYAmt1 = 4, layer.addYAmt2 = 5;
  layer.multX = 2, layer.multZ = 2;
  layer.moveX = 8, layer.moveY = -8, layer.moveZ = 2;
  ProfilePointRec& section = model.ProfilePts(2, 0);
  section.addXAmt1 = 2, section.addXAmt2 = 3, section.addZAmt1 = 6, section.addZAmt2 = 7;
  section.multY = 3, section.multZb = 3;
  section.secMoveX = 9, section.secMoveY = -4, section.secMoveZ = 4;
  section.secMultX = 0.5, section.secMultY = 0.25;
  LayExtrudedPoints(model, settings);
  EXPECT_EQ(Point(7), (Vec3{465, 165, 570}));
}

TEST_F(Extrude, TurnsGoAboutTheirOwnPivots) {
  ProfileHeader& h = model.Profile(0);
  h.originPathProfile = 5;
  Draw(1, {10, 10, 0}, 5);  // pivot of layer 1 and of section 1
  model.ProfilePts(1, 0).spinZ = 90;
  LayExtrudedPoints(model, settings);
  // Section 0 at (10, 10): on the pivot. Section 2 at (30, 10), 20 right of it, comes to stand 20 below.
  ExpectNear(5, {10, 10, 4});
  ExpectNear(7, {10, -10, 6});

  model.ProfilePts(1, 0).spinZ = 0;
  model.ProfilePts(1, 0).secTurnY = 180;
  LayExtrudedPoints(model, settings);
  ExpectNear(2, {0, 0, -5});  // (20, 5) about (10, 0)

  model.ProfilePts(1, 0).secTurnY = 0;
  h.genRotateX = 180;
  settings.origin = {0, 50, 0};
  LayExtrudedPoints(model, settings);
  ExpectNear(1, {10, 100, -4});
}

TEST_F(Extrude, AdditiveStartsFromThePart) {
  LayExtrudedPoints(model, settings);
  settings.additive = true;
  model.Profile(0).genMoveX = 3;
  LayExtrudedPoints(model, settings);
  LayExtrudedPoints(model, settings);
  EXPECT_EQ(Point(6), (Vec3{26, 10, 5}));
}

TEST_F(Extrude, NumbersOutsideTheTablesEndIt) {
  model.Profile(0).layerCount = 40;
  EXPECT_THROW(LayExtrudedPoints(model, settings), Fault);
  EXPECT_EQ(Point(37 * 4), (Vec3{40, 360, 7}));
  model.Profile(0).layerCount = 12;
  model.Profile(0).addProfile2Y = 37;
  EXPECT_THROW(LayExtrudedPoints(model, settings), Fault);
}

}  // namespace
}  // namespace pelorium
