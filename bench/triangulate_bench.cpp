// The tessellation of as many points as the table holds, next to a plain list with the circles kept beside
// it, and to CGAL's Delaunay triangulation where that is installed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "base/random_series.h"
#include "geometry/circumcircle.h"
#include "geometry/triangulate.h"

#ifdef PELORIUM_BENCH_CGAL
#include <CGAL/Delaunay_triangulation_2.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#endif

namespace pelorium {
namespace {

constexpr int kMostPoints = 3849;

enum Layout { Scattered, Sorted, Gridded, Clustered, Ring };

std::vector<Vec3> Places(int layout, int points) {
  RandomSeries random;
  std::vector<Vec3> places;
  for (int i = 0; i < points; ++i) {
    const double x = random.Next(), y = random.Next(), angle = 2 * std::numbers::pi * i / points;
    switch (layout) {
      case Gridded:
        places.push_back({10.0 * (i % 62), 10.0 * (i / 62), 0});
        break;
      case Clustered:
        places.push_back({std::pow(x, 8) * 600, std::pow(y, 8) * 600, 0});
        break;
      case Ring:
        places.push_back({300 * std::cos(angle), 300 * std::sin(angle), 0});
        break;
      default:
        places.push_back({x * 600, y * 600, 0});
    }
  }
  if (layout == Sorted)
    std::sort(places.begin(), places.end(), [](const Vec3& a, const Vec3& b) { return a.X < b.X; });
  return places;
}

void Tessellate(benchmark::State& state) {
  ModelStore model;
  int i = 0;
  for (const Vec3& place : Places(static_cast<int>(state.range(0)), kMostPoints)) {
    CopyPosition(model.Points(0, ++i), place);
    model.PointMark(0, i) = 1;
  }
  for (auto _ : state) state.counters["faces"] = Triangulate(model, {}, kMostPoints);
}
BENCHMARK(Tessellate)->DenseRange(Scattered, Ring)->Unit(benchmark::kMillisecond);

// Faces with their circles in one list; each point asks all of them.
void PlainListWithKeptCircles(benchmark::State& state) {
  struct Kept {
    int a, b, c;
    Circumcircle circle;
  };
  std::vector<Vec3> places = Places(static_cast<int>(state.range(0)), kMostPoints);
  places.insert(places.begin(), Vec3{});
  const int n = kMostPoints;
  places.insert(places.end(), {{-900, -300, 0}, {300, 1500, 0}, {1500, -300, 0}});
  const auto made = [&](int a, int b, int c) {
    const auto at = [&](int i) { return places[static_cast<std::size_t>(i)]; };
    return Kept{a, b, c, CircleThrough(at(a), at(b), at(c))};
  };
  for (auto _ : state) {
    std::vector<Kept> list = {made(n + 1, n + 2, n + 3)};
    std::vector<std::pair<int, int>> edges;
    for (int i = 1; i <= n; ++i) {
      const Vec3& p = places[static_cast<std::size_t>(i)];
      edges.clear();
      for (std::size_t j = 0; j < list.size();) {
        if (!list[j].circle.Holds(p.X, p.Y)) {
          ++j;
          continue;
        }
        const auto [a, b, c, circle] = list[j];
        edges.insert(edges.end(), {{a, b}, {b, c}, {c, a}});
        list[j] = list.back();
        list.pop_back();
      }
      for (std::size_t j = 0; j < edges.size(); ++j) {
        for (std::size_t k = j + 1; k < edges.size() && edges[j].first != 0; ++k) {
          if (edges[j] == std::pair{edges[k].second, edges[k].first}) edges[j] = edges[k] = {0, 0};
        }
      }
      for (const auto& [from, to] : edges) {
        if (from != 0) list.push_back(made(from, to, i));
      }
    }
    benchmark::DoNotOptimize(list.data());
  }
}
BENCHMARK(PlainListWithKeptCircles)->DenseRange(Scattered, Clustered)->Unit(benchmark::kMillisecond);

#ifdef PELORIUM_BENCH_CGAL
void CgalDelaunay(benchmark::State& state) {
  using Kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
  std::vector<Kernel::Point_2> points;
  for (const Vec3& p : Places(static_cast<int>(state.range(0)), kMostPoints)) points.emplace_back(p.X, p.Y);
  for (auto _ : state) {
    const CGAL::Delaunay_triangulation_2<Kernel> triangulation(points.begin(), points.end());
    state.counters["faces"] = static_cast<double>(triangulation.number_of_faces());
  }
}
BENCHMARK(CgalDelaunay)->DenseRange(Scattered, Ring)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
}  // namespace pelorium
