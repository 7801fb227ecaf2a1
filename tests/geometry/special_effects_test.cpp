// Effects on the chosen points: flat, rough, bulged, conformed, brushed, cut into columns.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/random_series.h"
#include "geometry/angular_cutoff.h"
#include "geometry/brush.h"
#include "geometry/bulge.h"
#include "geometry/conform.h"
#include "geometry/flatten.h"
#include "geometry/roughen.h"
#include "support/harness.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class Effects : public testing::Test {
 protected:
  Effects() {
    for (int i = 1; i <= 6; ++i) model.PointMark(0, i) = 1;
    model.Part(0).maxpoints = 6;
  }
  std::string Points(int last = 6) { return PointsText(model, 0, 1, last); }

  ModelStore model;
  const ChosenPoints chosen{0, 1, 6};
};

TEST_F(Effects, FlatOnOneSideOfThePlane) {
  PutPoints(model, 0, 1, {{1, 4, 0}, {2, 5, 0}, {3, 6, 0}, {4, 3, 0}, {5, 9, 0}, {6, 2, 0}});
  model.PointMark(0, 4) = 0;
  FlattenChosen(model, {0, 1, 6, 1}, Axis::Y, FlatSide::Below, 5);
  EXPECT_EQ(Points(), "1 5 0 | 2 5 0 | 3 6 0 | 4 3 0 | 5 9 0 | 6 5 0");
  EXPECT_EQ(model.PointMark(0, 4), 0);
  FlattenChosen(model, {0, 1, 6, 2}, Axis::X, FlatSide::Above, 2);
  EXPECT_EQ(Points(), "1 5 0 | 2 5 0 | 2 6 0 | 4 3 0 | 2 9 0 | 6 5 0");
}

TEST_F(Effects, RoughByWholeUnitsWhateverIsMarked) {
  PutPoints(model, 0, 1, {{0, 0, 0}, {0, 0, 0}});
  model.PointMark(0, 2) = 0;
  RandomSeries random, same;
  Roughen(model, {0, 1, 2}, {10, 100, -3}, random);
  for (int i = 1; i <= 2; ++i) {
    const PointRec& p = model.Points(0, i);
    EXPECT_EQ(p.X, std::floor(same.Next() * 10));
    EXPECT_EQ(p.Y, std::floor(same.Next() * 100));
    EXPECT_EQ(p.Z, std::floor(same.Next() * -3));
  }
  Roughen(model, {0, 1, 1}, {}, random);
  for (int i = 0; i < 3; ++i) same.Next();
  EXPECT_EQ(random.Next(), same.Next());
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { Roughen(model, {0, kMaxPoints, 30000}, {}, random); }));
}

TEST_F(Effects, RingsMoveAsWholesAndBack) {
  for (int i = 1; i <= 6; ++i) PutPoints(model, 0, i, {{1.0 * i, 0, 0}});
  model.PointMark(0, 1) = 0;
  RandomSeries random;
  ShakeRings(model, {0, 1, 5}, {2, 20, 7}, random);
  RandomSeries same;
  same.Seed(7);
  for (int ring = 0; ring < 3; ++ring) {
    const double dx = same.Next() * 20 - 10, dy = same.Next() * 20 - 10, dz = same.Next() * 20 - 10;
    for (int i = ring * 2 + 1; i <= ring * 2 + 2; ++i) {
      const bool moves = i != 1 && i != 6;
      EXPECT_EQ(model.Points(0, i).X, i + (moves ? dx : 0)) << i;
      EXPECT_EQ(model.Points(0, i).Y, moves ? dy : 0) << i;
      EXPECT_EQ(model.Points(0, i).Z, moves ? dz : 0) << i;
    }
  }
  ShakeRings(model, {0, 3, 5}, {2, 20, 7, true}, random);  // the same moves without the first ring's points
  ShakeRings(model, {0, 1, 2}, {2, 20, 7, true}, random);
  ShakeRings(model, chosen, {0, 20, 7}, random);
  EXPECT_EQ(Points(), "1 0 0 | 2 0 0 | 3 0 0 | 4 0 0 | 5 0 0 | 6 0 0");
}

// Every profile point in its order takes the points within its reach that are still free.
void PlainBulge(ModelStore& model, const BulgeSettings& s) {
  std::vector<bool> isMoved(kMaxPoints + 1);
  for (int p = s.firstProfile; p <= s.lastProfile; ++p) {
    for (int l = 0; l <= model.Profile(p).count - 2; ++l) {
      const ProfilePointRec& from = model.ProfilePts(l, p);
      for (int n = s.chosen.first; n <= s.chosen.last; ++n) {
        PointRec& to = model.Points(s.chosen.part, n);
        const double x = to.X - from.X, y = to.Y - from.Y, z = to.Z - from.Z;
        const bool reaches =
            s.box ? std::abs(x) <= s.box->X && std::abs(y) <= s.box->Y && std::abs(z) <= s.box->Z
                  : std::sqrt(x * x + y * y + z * z) <= s.radius;
        if (isMoved[static_cast<std::size_t>(n)] || !reaches || model.PointMark(s.chosen.part, n) != 1)
          continue;
        isMoved[static_cast<std::size_t>(n)] = true;
        for (const Axis axis : {Axis::X, Axis::Y, Axis::Z}) {
          if (!(axis == Axis::X ? s.alongX : axis == Axis::Y ? s.alongY : s.alongZ)) continue;
          double& c = Coordinate(to, axis);
          if (s.effect == BulgeEffect::Add) c += s.amount;
          if (s.effect == BulgeEffect::Multiply) c *= s.amount;
          if (s.effect == BulgeEffect::Power) c = c < 0 ? -std::pow(-c, s.amount) : std::pow(c, s.amount);
          if (s.effect == BulgeEffect::Snap) c = Coordinate(from, axis);
        }
      }
    }
  }
}

TEST(Bulge, EqualsThePlainWalk) {
  RandomSeries random;
  const auto place = [&](double size, double step) {
    const double at = (random.Next() - 0.5) * size;
    return step > 0 ? std::floor(at / step) * step : at;
  };
  struct Case {
    double size, step, radius;
    std::optional<Vec3> box;
    BulgeEffect effect;
    double amount;
  };
  // Clouds, lattices with neighbours at the reach itself, all within reach and none, uneven and odd boxes.
  using enum BulgeEffect;
  for (const Case& c : std::initializer_list<Case>{{600, 0, 40, {}, Add, 1},
                                                   {20, 1, 5, {}, Multiply, 1.005},
                                                   {20, 1, 0, {}, Power, 0.995},
                                                   {90, 0, 2000, {}, Power, -0.5},
                                                   {300, 0, 0, {{50, 3, 80}}, Snap, 0},
                                                   {20, 1, 0, {{2, 0, 3}}, Snap, 0},
                                                   {50, 0, 0, {{1e300, 5, 1e300}}, Snap, 0},
                                                   {50, 0, 0, {{50, -1, 50}}, Add, -1}}) {
    auto model = std::make_unique<ModelStore>(), plain = std::make_unique<ModelStore>();
    for (int p = 0; p < 5; ++p) {
      plain->Profile(p).count = model->Profile(p).count =
          static_cast<std::int16_t>(p == 3 ? p - 3 : 7 * p + 1);
      for (int l = 0; l <= kMaxLayer; ++l) {
        PutProfile(*model, p, l, {{place(c.size, c.step), place(c.size, c.step), place(c.size, c.step)}});
        plain->ProfilePts(l, p) = model->ProfilePts(l, p);
      }
    }
    for (int n = 1; n <= 2000; ++n) {
      PutPoints(*model, 1, n, {{place(c.size, c.step), place(c.size, c.step), place(c.size, c.step)}});
      plain->Points(1, n) = model->Points(1, n);
      plain->PointMark(1, n) = model->PointMark(1, n) = random.Next() < 0.8 ? 1 : 0;
    }
    const BulgeSettings settings{{1, 3, 1990},        1,        4,       c.radius, c.box, true, true,
                                 random.Next() < 0.5, c.effect, c.amount};
    Bulge(*model, settings);
    PlainBulge(*plain, settings);
    EXPECT_EQ(PointsText(*model, 1, 1, 2000), PointsText(*plain, 1, 1, 2000)) << c.size << " " << c.radius;
  }
}

TEST_F(Effects, TheBulgesEdgesAndLimits) {
  PutProfile(model, 2, 0, {{0, 0, 0}, {100, 0, 0}, {200, 0, 0}});
  model.Profile(2).count = 3;  // the last point does not reach out
  PutPoints(model, 0, 1, {{3, 4, 0}, {3, 4.0001, 0}, {-4, 0, 1}, {200, 0, 0}, {97, -4, 0}, {0, 5, 0}});
  BulgeSettings settings{chosen, 2, 2, 5, {}};
  settings.alongZ = false;
  settings.amount = 1;
  Bulge(model, settings);
  EXPECT_EQ(Points(), "4 5 0 | 3 4.0001 0 | -3 1 1 | 200 0 0 | 98 -3 0 | 1 6 0");
  settings.effect = BulgeEffect::Power;
  settings.amount = 2;
  settings.radius = 100;
  Bulge(model, settings);
  EXPECT_EQ(Points(), "16 25 0 | 9 16.0008 0 | -9 1 1 | 40000 0 0 | 9604 -9 0 | 1 36 0");
  settings.amount = 1e300;
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { Bulge(model, settings); }));
  settings.firstProfile = 3;  // none up to 2
  Bulge(model, settings);
  EXPECT_EQ(Points(1), "16 25 0");
}

// Columns of 10 pixels with the gray levels 0, 20, 40 ..; the rows from 637 on are white.
Picture Steps() {
  Picture picture(100, 650);
  std::vector<std::uint32_t> pixels;
  for (int i = 0; i < 100 * 650; ++i) {
    const int gray = i / 100 >= 637 ? 255 : i % 100 / 10 * 20;
    pixels.push_back(Rgb(gray, gray, gray));
  }
  picture.SetPixels(pixels);
  return picture;
}

TEST_F(Effects, ConformedByGrayAndZ) {
  const Picture picture = Steps();
  PutPoints(model, 0, 1, {{25, 1, 5}, {25.9, 0, 5}, {35, 637, 5}, {35, 638, 5}, {99.5, 10, 12}, {-1, 10, 5}});
  ConformRange range{chosen, 40, 180, 0, 10};
  ConformToGray(model, picture, range, {true, false, 2, {20, 100, 0}});
  EXPECT_EQ(Points(), "30 1 5 | 25.9 0 5 | 50 637 5 | 35 638 5 | 99.5 10 12 | -1 10 5");
  range.maxZ = 12;  // limits count
  range.maxGray = 255;
  model.PointMark(0, 1) = 0;
  ConformToGray(model, picture, range, {true, true, 0.5, {0, 0, 0}});
  EXPECT_EQ(Points(), "30 1 5 | 12.95 0 5 | 25 318.5 5 | 35 638 5 | 49.75 5 12 | -1 10 5");
  LiftToGray(model, picture, range, -0.25);
  EXPECT_EQ(Points(), "30 1 5 | 12.95 0 -63.75 | 25 318.5 -10 | 35 638 5 | 49.75 5 -20 | -1 10 5");
}

// Point by point as one would work it out by hand; points that fail stay to the last bit.
TEST(Conform, EqualsThePlainWay) {
  const Picture picture = Steps();
  RandomSeries random;
  ModelStore model;
  const Vec3 origin{3.1, -7.7, 0};
  for (int n = 1; n <= 500; ++n) {
    const Vec3 from{random.Next() * 140 - 20, random.Next() * 700 - 30, random.Next() * 40 - 20};
    PutPoints(model, 0, n, {from});
    model.PointMark(0, n) = random.Next() < 0.9 ? 1 : 0;
    Vec3 to = from;
    const int gray = 637 - from.Y >= 637 ? 255 : static_cast<int>(from.X / 10) * 20;
    const bool isInside = from.X >= 0 && from.X < 100 && from.Y > -13 && from.Y <= 637;
    if (isInside && gray >= 20 && gray <= 160 && std::abs(from.Z) <= 10 && model.PointMark(0, n) == 1) {
      to.X -= origin.X, to.Y -= origin.Y;
      to.Y = to.Y * 1.005;
      to.X += origin.X, to.Y += origin.Y;
    }
    ConformToGray(model, picture, {{0, n, n}, 20, 160, -10, 10}, {false, true, 1.005, origin});
    EXPECT_EQ((Vec3{model.Points(0, n).X, model.Points(0, n).Y, model.Points(0, n).Z}), to) << n;
  }
}

TEST_F(Effects, PushedByTheBrush) {
  PutPoints(model, 0, 1, {{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {0, 0, 5}, {3, 4, 90}, {0, 0, 0}});
  Brush(model, {0, 5, {}, true, true, true, 10, {16, 0, 32}});
  EXPECT_EQ(Points(), "16 0 32 | 14 0 18 | 10 0 0 | 9 0 23 | 3 4 90 | 0 0 0");
  model.PointMark(0, 1) = 0;
  Brush(model, {0, 6, {3, 4, 0}, true, true, false, 5, {0, 1, 0}});
  Brush(model, {0, 6, {3, 4, 0}, true, true, false, 0, {0, 1, 0}});
  EXPECT_EQ(Points(), "16 0 32 | 14 0 18 | 10 0 0 | 9 0 23 | 3 5 90 | 0 0 0");
}

TEST_F(Effects, CutIntoColumns) {
  PutPoints(model, 0, 1, {{10, 0, 7}, {30.4, 2, 0}, {30, 5.1, 0}, {210.4, 1, 0}, {0, 0, 0}, {112, 9, 0}});
  CutAngularly(model, chosen, {10, 0, 0}, 0.1);
  EXPECT_EQ(Points(), "10 0 7 | 30 2 0 | 30 5.1 0 | 193 1 0 | 0 0 0 | 103 9 0");
}

}  // namespace
}  // namespace pelorium
