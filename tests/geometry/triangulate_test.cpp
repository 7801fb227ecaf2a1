// The tessellation: small cases by hand, and all kinds of clouds against the plain loop.
#include "geometry/triangulate.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "base/random_series.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

using Cloud = std::vector<Vec3>;
using Face = std::array<int, 3>;
using Edge = std::array<int, 2>;

// Is the point in the circle of the triangle, worked out anew each time?
bool InCircle(const TessellationSettings& s, const Vec3& p, const Vec3& a, const Vec3& b, const Vec3& c) {
  const bool level1 = std::abs(a.Y - b.Y) < 1e-6, level2 = std::abs(b.Y - c.Y) < 1e-6;
  if (level1 && level2) return false;
  const double m1 = -(b.X - a.X) / (b.Y - a.Y), m2 = -(c.X - b.X) / (c.Y - b.Y);
  const double mx1 = (a.X + b.X) / 2, my1 = (a.Y + b.Y) / 2, mx2 = (b.X + c.X) / 2, my2 = (b.Y + c.Y) / 2;
  double x, y;
  if (level1) {
    x = (b.X + a.X) / 2, y = m2 * (x - mx2) + my2;
  } else if (level2) {
    x = (c.X + b.X) / 2, y = m1 * (x - mx1) + my1;
  } else {
    if (m1 == m2) return false;
    x = (m1 * mx1 - m2 * mx2 + my2 - my1) / (m1 - m2), y = m1 * (x - mx1) + my1;
  }
  const double rsqr = (b.X - x) * (b.X - x) + (b.Y - y) * (b.Y - y);
  const double dz = std::abs(p.Z - (a.Z + b.Z + c.Z) / 3);
  if (!((p.X - x) * (p.X - x) + (p.Y - y) * (p.Y - y) <= rsqr * (1 + 1e-9))) return false;
  if (s.rule == ElevationRule::Range) return s.lowest <= p.Z && p.Z <= s.highest;
  if (s.rule == ElevationRule::Radius) return dz <= std::sqrt(rsqr);
  return s.rule != ElevationRule::Distance || dz <= s.distance;
}

// The list as it is told: every triangle is asked at every point. The enclosing corners stand at the end.
std::vector<Face> PlainLoop(const ModelStore& model, const TessellationSettings& s, int n) {
  const auto at = [&](int i) {
    return Vec3{model.Points(0, i).X, model.Points(0, i).Y, model.Points(0, i).Z};
  };
  std::vector<Face> list = {{n + 1, n + 2, n + 3}};
  for (int i = 1; i <= n; ++i) {
    if (model.PointMark(0, i) != 1) continue;
    std::vector<Edge> edges;
    for (std::size_t j = 0; j < list.size();) {
      const auto [a, b, c] = list[j];
      if (!InCircle(s, at(i), at(a), at(b), at(c))) {
        ++j;
        continue;
      }
      edges.insert(edges.end(), {{a, b}, {b, c}, {c, a}});
      list[j] = list.back();
      list.pop_back();
    }
    for (std::size_t j = 0; j < edges.size(); ++j) {
      for (std::size_t k = j + 1; k < edges.size() && edges[j][0] != 0; ++k) {
        if (edges[j] == Edge{edges[k][1], edges[k][0]}) edges[j] = edges[k] = {0, 0};
      }
    }
    for (const Edge& edge : edges) {
      if (edge[0] != 0) list.push_back({edge[0], edge[1], i});
    }
  }
  for (std::size_t j = 0; j < list.size();) {
    if (std::max({list[j][0], list[j][1], list[j][2]}) <= n) {
      ++j;
    } else {
      list[j] = list.back();
      list.pop_back();
    }
  }
  return list;
}

void Put(ModelStore& model, const Cloud& cloud, int unmarkedEvery = 0) {
  int i = 0;
  for (const Vec3& place : cloud) {
    CopyPosition(model.Points(0, ++i), place);
    model.PointMark(0, i) = unmarkedEvery == 0 || i % unmarkedEvery != 0 ? 1 : 0;
  }
}

std::string Made(ModelStore& model, const Cloud& cloud, const TessellationSettings& settings = {}) {
  Put(model, cloud);
  return FacesText(model, 0, 1, Triangulate(model, settings, static_cast<int>(cloud.size())));
}

Cloud Ring(int sides, double x = 0, double phase = 0) {
  Cloud cloud;
  for (int k = 1; k <= sides; ++k) {
    const double angle = 2 * M_PI / sides * k + phase;
    cloud.push_back({x + 50 * std::cos(angle), 50 * std::sin(angle), 10.0 * (k % 5)});
  }
  return cloud;
}

Cloud Scattered(RandomSeries& random, int points, double side) {
  Cloud cloud;
  for (int i = 0; i < points; ++i)
    cloud.push_back({random.Next() * side, random.Next() * side, random.Next() * side});
  return cloud;
}

Cloud Whole(Cloud cloud) {
  for (Vec3& p : cloud) p = {std::floor(p.X), std::floor(p.Y), std::floor(p.Z)};
  return cloud;
}

// Clouds of all kinds: scattered ones of every density, and those where chance or rounding could decide.
std::vector<Cloud> AllClouds() {
  RandomSeries random;
  std::vector<Cloud> clouds;
  for (int i = 0; i < 200; ++i) clouds.push_back(Scattered(random, 3 + i / 2, 10 + 8 * i));
  for (int sides = 3; sides <= 36; ++sides) clouds.push_back(Ring(sides));
  for (const int side : {5, 9})
    clouds.push_back(Whole(Scattered(random, 120, side)));  // many twice, many gridded
  Cloud two = Ring(12), line, flat, far = Scattered(random, 80, 1e-3), heap(30, {5, 5, 5});
  for (const Vec3& p : Ring(12, 50, 0.1)) two.push_back(p);
  for (int i = 0; i < 40; ++i)
    line.push_back({3.0 * i, 7.0 * i, 0}), flat.push_back({1.5 * i, 4, 0.0 + i % 3});
  line.push_back({10, 90, 0}), flat.push_back({10, 90, 0});
  for (Vec3& p : far) p.X += 1e6, p.Y -= 1e6;
  for (const Vec3& p : Scattered(random, 20, 1000)) heap.push_back(p);
  for (const Cloud& cloud : {two, line, flat, far, heap}) clouds.push_back(cloud);
  return clouds;
}

TEST(Triangulate, GivesTheFacesOfThePlainLoopInItsOrder) {
  ModelStore model;
  int number = 0;
  for (const Cloud& cloud : AllClouds()) {
    const int n = static_cast<int>(cloud.size());
    for (const auto rule :
         {ElevationRule::None, ElevationRule::Range, ElevationRule::Radius, ElevationRule::Distance}) {
      const TessellationSettings settings{0, rule, cloud[0].Z / 2, 600, 0.4 * cloud[1].Z + 300};
      Put(model, cloud, number % 4 == 3 ? 5 : 0);
      const int made = Triangulate(model, settings, n);
      std::vector<Face> faces;
      for (int f = 1; f <= made; ++f) {
        const FaceRec& face = model.Faces(0, f);
        faces.push_back({face.corner1pt, face.corner2pt, face.corner3pt});
      }
      ASSERT_EQ(faces, PlainLoop(model, settings, n))
          << "cloud " << number << " rule " << static_cast<int>(rule);
    }
    ++number;
  }
}

TEST(Triangulate, SmallCasesByHand) {
  ModelStore model;
  EXPECT_EQ(Made(model, {{0, 0, 0}, {10, 0, 0}, {3, 8, 0}}), "2 1 3");
  EXPECT_EQ(PointsText(model, 0, 4, 6), "-15 -6 -10 | 5 24 -10 | 25 -6 -10");
  // The corners of a square lie on one circle: two faces all the same.
  EXPECT_EQ(Triangulate(model, {}, 0), 0);
  Made(model, {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}});
  EXPECT_EQ(Triangulate(model, {}, 4), 2);
  for (const int sides : {8, 36}) {
    Made(model, Ring(sides));
    EXPECT_EQ(Triangulate(model, {}, sides), sides - 2);
  }
  // Two points on one place count once; three points on a slope make no face.
  EXPECT_EQ(Made(model, {{0, 0, 0}, {10, 0, 0}, {10, 0, 0}, {3, 8, 0}}), "3 1 4");
  EXPECT_EQ(Made(model, {{0, 0, 0}, {5, 5, 0}, {10, 10, 0}}), "");
  // No point within the range: the enclosing triangle is never split.
  EXPECT_EQ(Made(model, {{0, 0, 0}, {10, 0, 0}, {3, 8, 0}}, {0, ElevationRule::Range, 1, 5, 0}), "");
}

TEST(Triangulate, TheTableHolds3849PointsAndARunPastItStopsBeforeThePoint) {
  RandomSeries random;
  const Cloud cloud = Scattered(random, kMaxPoints, 600);
  ModelStore model;
  Put(model, cloud);
  const auto highestCorner = [&](int faces) {
    int highest = 0;
    for (int f = 1; f <= faces; ++f) {
      const FaceRec& face = model.Faces(0, f);
      highest = std::max({highest, face.corner1pt, face.corner2pt, face.corner3pt});
    }
    return highest;
  };
  EXPECT_EQ(highestCorner(Triangulate(model, {}, 3849)), 3849);
  Put(model, cloud);
  EXPECT_EQ(highestCorner(Triangulate(model, {}, kMaxPoints)), 3849);
  EXPECT_EQ(model.Points(0, kMostTessellated).X, cloud[kMostTessellated - 1].X);
  // Numbers without an end come to an end.
  model.Points(0, 7).X = 1e200, model.Points(0, 8).Y = NAN;
  Triangulate(model, {}, 50);
}

}  // namespace
}  // namespace pelorium
