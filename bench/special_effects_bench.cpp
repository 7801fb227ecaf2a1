// The special effects at full tables: the logic alone, and clicks and brush strokes from the event to the
// pixels of the view.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "base/random_series.h"
#include "full_model.h"
#include "geometry/bulge.h"
#include "geometry/conjoin.h"
#include "geometry/copy_nearest.h"
#include "program.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"

namespace pelorium {
namespace {

// Full profiles, their points all over the full Part.
void FillProfiles(ModelStore& model, int profiles) {
  RandomSeries random;
  for (int p = 0; p < profiles; ++p) {
    model.Profile(p).count = kMaxLayer;
    for (int l = 0; l <= kMaxLayer; ++l) {
      const PointRec& near = model.Points(0, 1 + static_cast<int>(random.Next() * kMaxPoints));
      CopyPosition(model.ProfilePts(l, p), Vec3{near.X + random.Next() * 60, near.Y, near.Z});
    }
  }
}

BulgeSettings AllOf(int profiles, double radius, BulgeEffect effect) {
  return {{0, 1, kMaxPoints}, 0, profiles - 1, radius, {}, true, true, true, effect, 1};
}

// Arguments: profiles, reach.
void BulgeFullPart(benchmark::State& state, BulgeEffect effect) {
  auto model = std::make_unique<ModelStore>();
  for (auto _ : state) {
    state.PauseTiming();
    FillModel(*model);
    for (int i = 1; i <= kMaxPoints; ++i) model->PointMark(0, i) = 1;
    const int profiles = static_cast<int>(state.range(0));
    FillProfiles(*model, profiles);
    state.ResumeTiming();
    Bulge(*model, AllOf(profiles, static_cast<double>(state.range(1)), effect));
  }
}
BENCHMARK_CAPTURE(BulgeFullPart, Add, BulgeEffect::Add)
    ->Args({1, 150})
    ->Args({37, 20})
    ->Args({37, 150})
    ->Args({37, 2000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BulgeFullPart, Snap, BulgeEffect::Snap)
    ->Args({1, 150})
    ->Args({37, 20})
    ->Args({37, 150})
    ->Args({37, 2000})
    ->Unit(benchmark::kMillisecond);

// The peer: every profile point measures its distance to every point that is still free.
void BulgePlainly(benchmark::State& state) {
  auto model = std::make_unique<ModelStore>();
  FillModel(*model);
  FillProfiles(*model, 37);
  const double reach = static_cast<double>(state.range(0));
  for (auto _ : state) {
    std::vector<bool> isMoved(kMaxPoints + 1);
    int moved = 0;
    for (int p = 0; p < 37; ++p) {
      for (int l = 0; l <= model->Profile(p).count - 2; ++l) {
        const ProfilePointRec from = model->ProfilePts(l, p);
        for (int n = 1; n <= kMaxPoints; ++n) {
          if (isMoved[static_cast<std::size_t>(n)]) continue;
          const PointRec& to = model->Points(0, n);
          const double x = to.X - from.X, y = to.Y - from.Y, z = to.Z - from.Z;
          if (std::sqrt(x * x + y * y + z * z) > reach) continue;
          isMoved[static_cast<std::size_t>(n)] = true;
          ++moved;
        }
      }
    }
    benchmark::DoNotOptimize(moved);
  }
}
BENCHMARK(BulgePlainly)->Arg(20)->Arg(150)->Arg(2000)->Unit(benchmark::kMillisecond);

void ConjoinFullPart(benchmark::State& state) {
  auto model = std::make_unique<ModelStore>();
  FillModel(*model);
  for (auto _ : state) {
    ConjoinCorners(*model, 0);
    SwitchOffUnused(*model, 0);
  }
}
BENCHMARK(ConjoinFullPart)->Unit(benchmark::kMillisecond);

void NearestOfFullPart(benchmark::State& state) {
  auto model = std::make_unique<ModelStore>();
  for (auto _ : state) {
    state.PauseTiming();
    FillModel(*model);
    for (int i = 1; i <= kMaxPoints; ++i) model->PointMark(0, i) = 1;
    state.ResumeTiming();
    CopyNearest(*model, {0, 1, kMaxPoints}, 1);
  }
}
BENCHMARK(NearestOfFullPart)->Unit(benchmark::kMillisecond);

// 23000 chosen points of a full Part beside another full one, in the 3D view, over a gray picture.
void ShowFullPart(App& app) {
  FillModel(app.model);
  for (int i = 1; i <= kMaxPoints; ++i) app.model.PointMark(0, i) = 1;
  FillProfiles(app.model, 37);
  app.view->form5.HScroll25.SetValueWidening(kMaxPoints);
  app.view->form51.Option4.SetValue(true);
  Picture image(kImageWidth, kImageHeight);
  image.backColour = Rgb(100, 100, 100);
  image.Clear();
  app.view->form36.TakeImage(image);
}

void Click(benchmark::State& state, const char* button, int lastProfile) {
  Program program;
  App& app = program.app;
  ShowFullPart(app);
  app.geometry->specialeffects1.HScroll14.SetValue(lastProfile);
  MouseButton side = MouseButton::Left;
  for (auto _ : state) {
    side = side == MouseButton::Left ? MouseButton::Right : MouseButton::Left;
    app.Deliver({"specialeffects1", button, UserAction::Press, 0, {}, {side, {}}});
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK_CAPTURE(Click, ConformXY, "Command21", 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Click, ConformZ, "Command15", 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Click, BulgeByOneProfile, "Command30", 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Click, BulgeByAllProfiles, "Command30", kMaxProfile)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Click, SnapToAllProfiles, "Command45", kMaxProfile)->Unit(benchmark::kMillisecond);

void BrushStroke(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFullPart(app);
  app.geometry->specialeffects1.Check8.SetValue(true);
  app.geometry->specialeffects1.HScroll12.SetValue(100);  // all points are under it
  const auto send = [&](UserAction action, float x) {
    app.Deliver({"Form36", "Picture1", action, 0, {}, {MouseButton::Left, {}}, x, -300});
  };
  send(UserAction::MouseDown, 400);
  float way = 0;
  for (auto _ : state) {
    way = way == 0 ? 10.0F : 0.0F;
    send(UserAction::MouseMove, 400 + way);
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK(BrushStroke)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
