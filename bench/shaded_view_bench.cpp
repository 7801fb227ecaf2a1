// A drag of the shaded view with full tables, and its shares: recording the calls, drawing them, reading the
// pixels back. The wire of the same model stands beside it.
#include <benchmark/benchmark.h>

#include "full_model.h"
#include "graphics/gl_recorder.h"
#include "program.h"
#include "views/draw_shaded.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

enum Shown { kFacesOnly, kFacesAndEdges };

// Faces and grid, and the edges of all faces if asked for; no points.
void ShowFull(App& app, bool withEdges) {
  FillModel(app.model);
  app.view->form51.Check10.SetValue(false);
  app.view->form51.Check21.SetValue(withEdges);
  app.view->form51.Check13.SetValue(withEdges);
}

// One mouse event over the view, to its pixels.
void ShadedDragEvent(benchmark::State& state) {
  Program program;
  App& app = program.app;
  ShowFull(app, state.range(0) == kFacesAndEdges);
  app.view->form51.Command2.Press();
  if (!program.platform.TakeMessages().empty()) return state.SkipWithError("this machine has no OpenGL");
  UserEvent event{"Form36", "Picture1", UserAction::MouseDown};
  app.Deliver(event);
  event.action = UserAction::MouseMove;
  for (auto _ : state) {
    event.x = event.x == 0 ? 3 : 0;
    app.Deliver(event);
    benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK(ShadedDragEvent)
    ->ArgName("shown")
    ->Arg(kFacesOnly)
    ->Arg(kFacesAndEdges)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Waits for the drawing to end: a pixel cannot be read before.
void Finish(GlSurface& surface) {
  std::uint32_t pixel = 0;
  surface.ReadBack(&pixel, 1, 1);
  benchmark::DoNotOptimize(pixel);
}

enum Share { kRecord, kDraw, kReadBack };

// One share of a picture of faces and grid is measured, the others are left out of the time.
void ShadedShare(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  ShadedSettings settings;
  settings.pose = {245, 0, 45};
  settings.shown.showChosenPoints = false;
  const auto surface = OpenEglSurface();
  if (!surface) return state.SkipWithError("this machine has no OpenGL");
  GlRecorder recorder;
  std::vector<std::uint32_t> pixels(std::size_t{kViewWidth} * kViewHeight);
  const auto timed = [&state](bool isMeasured, auto act) {
    if (isMeasured) state.ResumeTiming();
    act();
    if (isMeasured) state.PauseTiming();
  };
  for (auto _ : state) {
    state.PauseTiming();
    timed(state.range(0) == kRecord, [&] {
      recorder.Restart();
      DrawShaded(model, settings, recorder);
    });
    timed(state.range(0) == kDraw, [&] {
      recorder.Replay(*surface->Begin(kViewWidth, kViewHeight));
      Finish(*surface);
    });
    timed(state.range(0) == kReadBack, [&] { surface->ReadBack(pixels.data(), kViewWidth, kViewHeight); });
    state.ResumeTiming();
  }
  state.counters["calls"] = static_cast<double>(recorder.calls().size());
}
BENCHMARK(ShadedShare)
    ->Arg(kRecord)
    ->Arg(kDraw)
    ->Arg(kReadBack)
    ->ArgName("share")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void WireOfTheSame(benchmark::State& state) {
  Program program;
  ShowFull(program.app, false);
  program.app.view->form51.Option4.SetValue(true);
  for (auto _ : state) {
    RefreshViews(program.app);
    benchmark::DoNotOptimize(program.app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK(WireOfTheSame)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace pelorium
