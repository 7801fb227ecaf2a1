// The revolve, against positions worked out by hand.
#include "geometry/revolve.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "geometry/rot.h"

namespace pelorium {
namespace {

class Revolve : public ::testing::Test {
 protected:
  Revolve() {
    model.Profile(0).count = 2;
    model.ProfilePts(0, 0).X = 10.6;
    model.ProfilePts(0, 0).Z = 5;
    model.ProfilePts(1, 0).X = 20;
    model.ProfilePts(1, 0).Z = 7;
    settings.lastSection = 4;
    settings.degreesPerSection = 90;
    settings.layersLimit = 2;
  }

  void ExpectPoint(int number, double x, double y, double z) {
    const PointRec& p = model.Points(0, number);
    EXPECT_NEAR(p.X, x, 1e-5) << "point " << number;
    EXPECT_NEAR(p.Y, y, 1e-5) << "point " << number;
    EXPECT_NEAR(p.Z, z, 1e-5) << "point " << number;
  }

  ModelStore model;
  RevolveSettings settings;
};

// The general turns reflect Y twice and Z twice, and the last step turns Z over: the body stands as drawn.
TEST_F(Revolve, RingsTurnFromXToY) {
  LayRevolvedPoints(model, settings);
  ExpectPoint(1, 10.6, 0, 5);
  ExpectPoint(2, 0, 11, 5);  // the radius in Y is a whole number
  ExpectPoint(3, -10.6, 0, 5);
  ExpectPoint(6, 20, 0, 7);
  ExpectPoint(7, 0, 20, 7);
  EXPECT_EQ(model.Part(0).maxpoints, 16);  // (2 + 1) rows of 5, and 1
  EXPECT_EQ(model.Part(0).minpoints, 1);
}

TEST_F(Revolve, LaidPointsAreSwitchedOn) {
  model.Points(0, 2).onoff = 0;
  model.PointMark(0, 2) = 0;
  LayRevolvedPoints(model, settings);
  EXPECT_EQ(model.Points(0, 2).onoff, 1);
  EXPECT_EQ(model.PointMark(0, 2), 1);
}

TEST_F(Revolve, PetalsAddUpAlongTheRing) {
  settings.petalsX = 1;
  settings.petalsY = 0;
  settings.petalAmp = 4;
  settings.multiplyX = 0.5;
  LayRevolvedPoints(model, settings);
  ExpectPoint(1, 10.6, 0, 5);
  ExpectPoint(3, -12.6, 0, 5);  // 10.6 + 2 sin 90 + 2 sin 180
  ExpectPoint(5, 10.6, 0, 5);   // and 2 sin 270 takes it back
}

TEST_F(Revolve, SpiralAndCorkscrewGrowBySections) {
  settings.spiral = 2;
  settings.corkscrew = 3;
  LayRevolvedPoints(model, settings);
  ExpectPoint(2, 2, 13, 8);
  ExpectPoint(3, -6.6, 4, 11);
  ExpectPoint(6, 20, 0, 7);  // each layer starts anew
}

TEST_F(Revolve, RegularSpacingWritesTheProfile) {
  settings.regularSpacing = true;
  settings.spacing = 50;
  LayRevolvedPoints(model, settings);
  EXPECT_EQ(model.ProfilePts(1, 0).Z, 50);
  ExpectPoint(6, 20, 0, 50);
}

TEST_F(Revolve, GeneralFieldsMoveScaleAndTurn) {
  ProfileHeader& general = model.Profile(0);
  general.genMultX = 2;
  general.genMoveY = 100;
  LayRevolvedPoints(model, settings);
  ExpectPoint(1, 21.2, 100, 5);
  general = ProfileHeader{};
  general.genSpinZ = 90;
  LayRevolvedPoints(model, settings);
  ExpectPoint(1, 0, -10.6, 5);
}

TEST_F(Revolve, LayersOutsideKeepTheirPoints) {
  settings.firstPlaced = 1;
  model.Points(0, 1).X = 123;
  LayRevolvedPoints(model, settings);
  ExpectPoint(1, 123, 1, 1);
  ExpectPoint(6, 20, 0, 7);
}

TEST_F(Revolve, AnIncrementOfZeroWritesOnePoint) {
  settings.increment = 0;
  model.Points(0, 2).X = 55;
  LayRevolvedPoints(model, settings);
  EXPECT_EQ(model.Points(0, 2).X, 55);
  EXPECT_EQ(model.Points(0, 1).Y, 0);
}

TEST_F(Revolve, NumbersOutsideTheTableAreFaults) {
  settings.increment = -1;
  EXPECT_THROW(LayRevolvedPoints(model, settings), Fault);
  settings.increment = 1000;
  EXPECT_THROW(LayRevolvedPoints(model, settings), Fault);
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
  double a = 3, b = 5;
  Rot(a, b, Turn::By(0), 1, 1);
  EXPECT_EQ(a, 3);
  EXPECT_EQ(b, -3);
  Rot(a, b, Turn::By(90), 1, 1);
  EXPECT_NEAR(a, -3, 1e-6);
  EXPECT_NEAR(b, 3, 1e-6);
}

}  // namespace
}  // namespace pelorium
