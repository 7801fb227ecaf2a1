// Joining the points of a full Part.
#include <benchmark/benchmark.h>

#include "base/random_series.h"
#include "geometry/join_points.h"

namespace pelorium {
namespace {

// 23000 marked points spread over a cube of the given side; a small one puts many within the tolerance.
void JoinFullPart(benchmark::State& state) {
  RandomSeries random;
  ModelStore model;
  model.Part(0).maxpoints = kMaxPoints;
  const auto side = static_cast<double>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    for (int i = 1; i <= kMaxPoints; ++i) {
      PointRec& point = model.Points(0, i);
      point.X = random.Next() * side, point.Y = random.Next() * side, point.Z = random.Next() * side;
      model.PointMark(0, i) = 1;
    }
    state.ResumeTiming();
    benchmark::DoNotOptimize(JoinPoints(model, {0, 2}));
  }
}
BENCHMARK(JoinFullPart)->Arg(20)->Arg(60)->Arg(600)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
