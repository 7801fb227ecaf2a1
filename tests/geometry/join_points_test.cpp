// Joining points: the quick way against the plain walk over all pairs.
#include "geometry/join_points.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

#include "base/random_series.h"

namespace pelorium {
namespace {

Vec3 Place(const ModelStore& model, int point) {
  const PointRec& p = model.Points(0, point);
  return {p.X, p.Y, p.Z};
}

// Every marked point in its order takes all others within the tolerance; the positions as they are just then.
std::vector<Vec3> PlainWalk(const ModelStore& model, double tolerance) {
  std::vector<Vec3> p;
  for (int i = 1; i <= model.Part(0).maxpoints; ++i) p.push_back(Place(model, i));
  for (std::size_t a = 0; a < p.size(); ++a) {
    if (model.PointMark(0, static_cast<int>(a) + 1) != 1) continue;
    for (std::size_t b = 0; b < p.size(); ++b) {
      const double x = p[a].X - p[b].X, y = p[a].Y - p[b].Y, z = p[a].Z - p[b].Z;
      if (a != b && std::sqrt(x * x + y * y + z * z) <= tolerance) p[b] = p[a];
    }
  }
  return p;
}

TEST(JoinPoints, EqualsThePlainWalk) {
  RandomSeries random;
  struct Case {
    int points;
    double size, step, tolerance;
  };
  // Clouds, lattices whose neighbours lie at the tolerance itself, far places and crowded ones.
  for (const Case& c : std::initializer_list<Case>{{1500, 60, 0, 3},
                                                   {1500, 20, 1, 1},
                                                   {1500, 12, 1, 2},
                                                   {800, 9, 1, 0},
                                                   {800, 1, 0, 5},
                                                   {800, 1e9, 1e7, 1000},
                                                   {300, 1e17, 1e16, 2}}) {
    ModelStore model;
    model.Part(0).maxpoints = static_cast<std::int16_t>(c.points);
    std::vector<Vec3> before;
    for (int i = 1; i <= c.points; ++i) {
      PointRec& p = model.Points(0, i);
      for (double* place : {&p.X, &p.Y, &p.Z}) {
        *place = (random.Next() - 0.5) * c.size;
        if (c.step > 0) *place = std::floor(*place / c.step) * c.step;
      }
      model.PointMark(0, i) = random.Next() < 0.5 ? 1 : 0;
      before.push_back(Place(model, i));
    }
    const std::vector<Vec3> expected = PlainWalk(model, c.tolerance);
    const int moved = JoinPoints(model, {0, c.tolerance});
    int differing = 0;
    for (int i = 1; i <= c.points; ++i) {
      const auto at = static_cast<std::size_t>(i) - 1;
      ASSERT_EQ(Place(model, i), expected[at]) << "point " << i << " tolerance " << c.tolerance;
      if (before[at] != expected[at]) ++differing;
    }
    EXPECT_EQ(moved, differing);
  }
}

TEST(JoinPoints, FacesKeepTheirCopiesUnlessAsked) {
  ModelStore model;
  model.Part(0).maxpoints = 2;
  model.Points(0, 1) = {10, 0, 0};
  model.Points(0, 2) = {11, 0, 0};
  model.PointMark(0, 1) = 1;
  model.Part(0).maxfaces = 1;
  FaceRec& face = model.Faces(0, 1);
  face.c1X = 9, face.c2X = 11.5, face.c3X = 13;
  JoinPoints(model, {0, 2});
  EXPECT_EQ(face.c1X, 9);
  JoinPoints(model, {0, 2, true});
  EXPECT_EQ((std::array{face.c1X, face.c2X, face.c3X}), (std::array{10.0, 10.0, 13.0}));
}

TEST(JoinPoints, TellsItsProgress) {
  ModelStore model;
  model.Part(0).maxpoints = kMaxPoints;
  std::vector<int> told;
  JoinPoints(model, {0, 1}, [&](int point) { told.push_back(point); });
  EXPECT_LE(told.size(), 101U);
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back(), kMaxPoints);
}

}  // namespace
}  // namespace pelorium
