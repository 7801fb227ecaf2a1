// The revolve, against positions worked out by hand.
#include "geometry/revolve.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "geometry/rot.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class Revolve : public ::testing::Test {
 protected:
  Revolve() {
    model.Profile(0).count = 2;
    PutProfile(model, 0, 0, {{10.6, 0, 5}, {20, 0, 7}});
    settings.lastSection = 4;
    settings.degreesPerSection = 90;
    settings.layersLimit = 2;
  }

  std::string Laid(int first, int last) {
    LayRevolvedPoints(model, settings);
    return PointsText(model, 0, first, last);
  }

  ModelStore model;
  RevolveSettings settings;
};

// The general turns reflect Y twice and Z twice, and the last step turns Z over: the body stands as drawn.
// The radius in Y is a whole number.
TEST_F(Revolve, RingsTurnFromXToY) {
  model.Points(0, 2).onoff = model.PointMark(0, 2) = 0;
  EXPECT_EQ(Laid(1, 3), "10.6 0 5 | 0 11 5 | -10.6 0 5");
  EXPECT_EQ(Laid(6, 7), "20 0 7 | 0 20 7");
  EXPECT_EQ(model.Part(0).maxpoints, 16);  // (2 + 1) rows of 5, and 1
  EXPECT_EQ(model.Part(0).minpoints, 1);
  EXPECT_EQ(model.Points(0, 2).onoff, 1);
  EXPECT_EQ(model.PointMark(0, 2), 1);
}

// 10.6 + 2 sin 90 + 2 sin 180, and 2 sin 270 takes it back.
TEST_F(Revolve, PetalsAddUpAlongTheRing) {
  settings.petalsX = 1, settings.petalsY = 0;
  settings.petalAmp = 4, settings.multiplyX = 0.5;
  EXPECT_EQ(Laid(1, 1) + " | " + Laid(3, 3) + " | " + Laid(5, 5), "10.6 0 5 | -12.6 0 5 | 10.6 0 5");
}

TEST_F(Revolve, EachLayerStartsAnew) {
  settings.spiral = 2;
  settings.corkscrew = 3;
  EXPECT_EQ(Laid(6, 6), "20 0 7");
}

TEST_F(Revolve, RegularSpacingWritesTheProfile) {
  settings.regularSpacing = true;
  settings.spacing = 50;
  EXPECT_EQ(Laid(6, 6), "20 0 50");
  EXPECT_EQ(model.ProfilePts(1, 0).Z, 50);
}

// Worked out apart from the program, term by term.
TEST_F(Revolve, EverySettingMovesThePoints) {
  ProfileHeader& h = model.Profile(0);
  h.genRotateX = 10, h.genTurnY = 20, h.genSpinZ = 30, h.genMoveX = 3, h.genMoveY = 4, h.genMoveZ = 5;
  h.genMultX = 1.5, h.genMultY = 2.5, h.genMultZ = 3.5;
  settings.origin = {3.5, -4.25, 5.125};
  settings.degreesPerSection = 40, settings.spiral = 2, settings.corkscrew = 3;
  settings.petalsX = 1, settings.petalsY = 2, settings.petalAmp = 4;
  settings.multiplyX = 0.5, settings.multiplyY = 1.5;
  EXPECT_EQ(Laid(1, 3), "22.1008 -15.6788 -5.239 | 41.493 10.7971 3.6086 | 50.8406 33.7793 15.5525");
}

TEST_F(Revolve, WhatIsLeftOutKeepsItsPoints) {
  PutPoints(model, 0, 1, {{123, 1, 1}, {55, 1, 1}});
  settings.firstPlaced = 1;
  EXPECT_EQ(Laid(1, 2), "123 1 1 | 55 1 1");
  settings.firstPlaced = 0;
  settings.increment = 0;
  EXPECT_EQ(Laid(2, 2), "55 1 1");
  EXPECT_EQ(model.Points(0, 1).Y, 0);
}

TEST_F(Revolve, NumbersOutsideTheTableAreFaults) {
  for (const double increment : {-1, 1000}) {
    settings.increment = increment;
    EXPECT_THROW(LayRevolvedPoints(model, settings), Fault);
  }
}

// Layers 0 .. 36 are laid whatever the upper cut-off says; the mesh takes fewer.
TEST(RevolveRows, AreHeldByLimitAndCutOffs) {
  RevolveSettings s;
  s.layersLimit = 36;
  EXPECT_EQ(MeshedRows(s), 36);
  s.lastLayer = 10;
  EXPECT_EQ(MeshedRows(s), 11);
  s.firstLayer = 4;
  EXPECT_EQ(MeshedRows(s), 7);
  s.firstLayer = 40;
  EXPECT_EQ(MeshedRows(s), 0);
  EXPECT_EQ(RingWidth(s), 37);
  s.firstSection = 50;
  EXPECT_EQ(RingWidth(s), 0);
}

TEST(Rot, ReflectsAtZeroAndTurnsBack) {
  Vec3 p = {3, 5, 0};
  Rot(p.X, p.Y, Turn::By(0), 1, 1);
  EXPECT_EQ(p, (Vec3{3, -3, 0}));
  Rot(p.X, p.Y, Turn::By(90), 1, 1);
  EXPECT_NEAR(p.X, -3, 1e-6);
  EXPECT_NEAR(p.Y, 3, 1e-6);
}

}  // namespace
}  // namespace pelorium
