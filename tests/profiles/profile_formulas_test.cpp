// Profiles made by formulas.
#include "profiles/profile_formulas.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/fault.h"
#include "base/random_series.h"
#include "profiles/simple_waves.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class ProfileFormulas : public testing::Test {
 protected:
  ProfileFormulas() {
    s.origin = {1, 2, 3};
    s.profile = 5;
    s.lastPoint = 2;
  }
  std::string Points(int first, int last) const { return ProfileText(model, s.profile, first, last); }
  Vec3 Point(int i) const {
    const ProfilePointRec& p = model.ProfilePts(i, s.profile);
    return {p.X, p.Y, p.Z};
  }

  ModelStore model;
  FormulaSettings s;
  RandomSeries random;
};

TEST_F(ProfileFormulas, CountIsRoundedHalfToEvenAndHeld) {
  for (auto [maxPoints, count] :
       std::vector<std::pair<double, int>>{{36.5, 36}, {2.5, 2}, {3.5, 4}, {99, 36}, {1e30, 36}, {-4, 0}}) {
    s.maxPoints = maxPoints;
    LayRegularX(model, s);
    EXPECT_EQ(model.Profile(5).count, count) << maxPoints;
  }
}

TEST_F(ProfileFormulas, OnlyThePointsOfTheRangeAreWritten) {
  s.firstPoint = 34.5, s.lastPoint = 99;
  LayRegularX(model, s);
  EXPECT_EQ(Points(33, 36), "0 0 0 | 340 0 0 | 350 0 0 | 360 0 0");
  s.firstPoint = 99, s.lastPoint = 99, s.xSpacing = 1;
  LayRegularX(model, s);
  EXPECT_EQ(Points(36, 36), "360 0 0");
  s.firstPoint = -7, s.lastPoint = 1;
  LayRegularX(model, s);
  EXPECT_EQ(Points(0, 2), "0 0 0 | 1 0 0 | 0 0 0");
}

TEST_F(ProfileFormulas, CircleTurnsThenSteps) {
  s.degrees = 90, s.degreesDecay = 30;  // 60, then 60 + 90 - 60 = 90 degrees, and no turn more
  s.zSpacing = -1, s.zStart = 7, s.yDecay = 4;
  LayCircle(model, s, random);
  EXPECT_EQ(Points(0, 2), "51 296 82.6025 | 21 292 94 | 41 288 92");
}

TEST_F(ProfileFormulas, ACircleDecaysThroughZeroAndTurnsInsideOut) {
  s.degrees = 0, s.xDecay = 60, s.xSpacing = 0;
  LayCircle(model, s, random);
  EXPECT_EQ(Points(0, 2), "41 300 3 | -19 300 3 | -79 300 3");
}

TEST_F(ProfileFormulas, TheDefaultCircleClosesAfter35Steps) {
  s.lastPoint = 36, s.xSpacing = 0;
  LayCircle(model, s, random);
  EXPECT_NEAR(Point(35).X, Point(0).X, 1e-3);
  EXPECT_NEAR(Point(35).Z, Point(0).Z, 1e-3);
  EXPECT_NEAR(Point(0).X, 1 + 98.39295886, 1e-3);  // one step of 10.2857142857143 degrees is made already
}

TEST_F(ProfileFormulas, AdditiveAddsAndLeavesTheElevation) {
  s.degrees = 0, s.additive = true;
  model.ProfilePts(1, 5).X = 1000;
  model.ProfilePts(1, 5).Y = 7;
  LayCircle(model, s, random);
  EXPECT_EQ(Points(1, 1), "1121 7 3");  // 1000 + (1 + 100) + 10 * 2
  LayCircle(model, s, random);
  EXPECT_EQ(Points(1, 1), "1242 7 6");
}

TEST_F(ProfileFormulas, SineTakesTheOriginsXForZAndItsZForX) {
  s.degrees = 90, s.zDecay = 10, s.xDecay = 1, s.degreesDecay = 45, s.zSpacing = 2;
  LaySine(model, s, random);
  // 3 + 2 * (10 - 2) and 1 + 30 * sin 45 + 2 * 2; then the decay has eaten the turn.
  EXPECT_EQ(Points(0, 2), "3 300 1 | 19 300 26.2132 | 31 300 9");
  s.additive = true, s.elevation = 9;
  LaySine(model, s, random);
  EXPECT_EQ(Points(0, 1), "3 300 2 | 19 300 52.4264");
}

TEST_F(ProfileFormulas, ParabulaSquaresLeftOfZeroAndStopsItsPowerAtZero) {
  s.xStart = -3, s.xInterval = 4, s.power = -1.5, s.powerDecay = .5, s.parabulaAmplitude = 2;
  LayParabula(model, s, random);
  EXPECT_EQ(Points(0, 2), "-29 300 21 | 11 300 5 | 51 300 5");  // 3 + 2 * 9, 1 ^ .5, 5 ^ 0
  s.powerDecay = 2;
  s.xInterval = 9;
  s.additive = true;
  LayParabula(model, s, random);
  EXPECT_EQ(Points(1, 1), "61 300 10");  // 6 ^ 0
}

TEST_F(ProfileFormulas, NoiseDrawsXThenZAtEachPoint) {
  s.degrees = 0, s.xRadius = s.zRadius = 0, s.xSpacing = 0, s.origin = {}, s.zNoise = 100;
  random.Seed(7);
  LayCircle(model, s, random);
  RandomSeries expected;
  expected.Seed(7);
  for (int i = 0; i <= 2; ++i) {
    expected.Next();
    EXPECT_EQ(Point(i).Z, expected.Next() * 100);
    EXPECT_EQ(Point(i).X, 0);
  }
  s.amplitude = 0, s.xNoise = 10;
  random.Seed(7);
  LaySineX(model, s, random);
  expected.Seed(7);
  for (int i = 0; i <= 2; ++i) EXPECT_EQ(Point(i), (Vec3{expected.Next() * 10, 300, 0}));
}

TEST_F(ProfileFormulas, NoPointIsPutAtInfinity) {
  s.xStart = 0, s.xInterval = 1e200;
  EXPECT_THROW(LayParabula(model, s, random), Fault);
  EXPECT_EQ(Point(1), Vec3{});
  EXPECT_EQ(model.Profile(5).count, 36);
}

TEST_F(ProfileFormulas, PlainFormsFollowFromTheNumberOfThePoint) {
  s.waveAmplitude = 4, s.waveFrequency = 1.5707963267948966, s.wave3Factor = 3, s.wave3Offset = 8;
  LaySinWave(model, s);
  EXPECT_EQ(Points(1, 1), "24 12 12");
  LaySinWave2(model, s);
  EXPECT_EQ(Points(1, 1), "12 24 24");
  LaySinWave3(model, s);
  EXPECT_EQ(Points(1, 1), "12 24 31");  // 24 - 1 + 8
  s.barElevation = 50, s.barSpacing = 6, s.barZDecay = 100, s.funnelFactor = .5;
  LayParabula2(model, s);
  EXPECT_EQ(Points(2, 2), "2.44 50 14");  // 1 + .36 * 4
  LayFunnel(model, s);
  EXPECT_EQ(Points(2, 2), "102 48 48");  // 6 * 2 + 36
  LayRegularX(model, s);
  EXPECT_EQ(Points(2, 2), "20 48 48");
}

}  // namespace
}  // namespace pelorium
