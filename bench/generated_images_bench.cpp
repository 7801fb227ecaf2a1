// Generated images: noise, clouds and gray levels, and the windows that make them.
#include <benchmark/benchmark.h>

#include "imaging/corner_plasma.h"
#include "imaging/gradient.h"
#include "imaging/gray_levels.h"
#include "imaging/perlin_noise.h"
#include "imaging/tiling_plasma.h"
#include "program.h"
#include "windows/imaging/specialeffects3_gray_levels.h"
#ifdef PELORIUM_BENCH_LIBNOISE
#include <libnoise/noise.h>
#endif

namespace pelorium {
namespace {

// Width, height, octaves, units from the middle to the edges.
void ImagePerlin(benchmark::State& state) {
  cDIBSection surface;
  surface.Create(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  PerlinSettings settings;
  settings.octaveLimit = 1 << (state.range(2) - 1);
  settings.extent = static_cast<double>(state.range(3));
  RandomSeries random;
  for (auto _ : state) {
    RenderPerlin(surface, settings, random);
    benchmark::DoNotOptimize(surface.DIBSectionBitsPtr());
  }
}
BENCHMARK(ImagePerlin)
    ->Args({1024, 1024, 6, 1})
    ->Args({1024, 1024, 6, 16})
    ->Args({970, 670, 1, 1})
    ->Unit(benchmark::kMillisecond);

// The same pictures without the short cuts: noise asked for at each place.
void ImagePerlinPlain(benchmark::State& state) {
  const cPerlin3D noise;
  const double extent = static_cast<double>(state.range(0)), step = extent / 512;
  for (auto _ : state) {
    double sum = 0;
    for (double x = -extent; x < extent; x += step) {
      for (double y = -extent; y < extent; y += step) {
        for (int freq = 1; freq <= 32; freq *= 2) sum += noise.Noise(x * freq, y * freq, 0.03 * freq) / freq;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ImagePerlinPlain)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

#ifdef PELORIUM_BENCH_LIBNOISE
// Another library's noise of six octaves at the same places.
void ImagePerlinPeer(benchmark::State& state) {
  noise::module::Perlin perlin;
  perlin.SetOctaveCount(6);
  const double extent = static_cast<double>(state.range(0)), step = extent / 512;
  for (auto _ : state) {
    double sum = 0;
    for (double x = -extent; x < extent; x += step) {
      for (double y = -extent; y < extent; y += step) sum += perlin.GetValue(x, y, 0.03);
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ImagePerlinPeer)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);
#endif

void ImageTilingPlasma(benchmark::State& state) {
  Picture picture(970, 670);
  RandomSeries random;
  for (auto _ : state) PaintTilingPlasma(picture, 100, random);
}
BENCHMARK(ImageTilingPlasma)->Unit(benchmark::kMillisecond);

// The argument: a draw for each channel.
void ImageCornerPlasma(benchmark::State& state) {
  Picture picture(968, 670);
  RandomSeries random;
  CornerPlasma plasma;
  plasma.width = 968;
  plasma.height = 670;
  plasma.movesAlike = state.range(0) == 0;
  for (auto _ : state) PaintCornerPlasma(picture, plasma, random);
}
BENCHMARK(ImageCornerPlasma)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void ImageGrayBlur(benchmark::State& state) {
  Picture picture(968, 670);
  FillAcross(picture, {});
  for (auto _ : state) BlurGrays(picture, {.spacing = 1});
}
BENCHMARK(ImageGrayBlur)->Unit(benchmark::kMillisecond);

void ImageGrayBrush(benchmark::State& state) {
  Picture picture(968, 670);
  RandomSeries random;
  GrayBrush brush;
  brush.size = 200;
  double x = 100;
  for (auto _ : state) {
    PaintGrays(picture, brush, {x, 300, true}, random);
    x = x < 800 ? x + 1 : 100;
    benchmark::DoNotOptimize(picture.Pixels().data());
  }
}
BENCHMARK(ImageGrayBrush)->Unit(benchmark::kMicrosecond);

void Send(App& app, const char* window, const char* control, UserAction action, float x = 0, float y = 0) {
  app.Deliver({window, control, action, 0, {}, {MouseButton::Left, {}}, x, y});
}

// "Plasma Creator" at the size of the image, from the button to the pixels of the view.
void ImagePlasmaThree(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    Send(program.app, "Plasmathree", "cmdCreateTile", UserAction::Press);
    benchmark::DoNotOptimize(program.app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK(ImagePlasmaThree)->Unit(benchmark::kMillisecond);

// "Gray Levels Edit" with a brush of 200. 0: a move, to the window's own pixels; 1: the letting go, to those
// of the view; the press before it does not count.
void ImageGrayStroke(benchmark::State& state) {
  Program program;
  App& app = program.app;
  const char* window = "Specialeffects3";
  auto& editor = dynamic_cast<SpecialEffects3&>(*app.FindWindow(window));
  editor.sliders[1]->SetValue(200);
  Send(app, window, "Picture1", UserAction::MouseDown, 100, 300);
  float x = 100;
  for (auto _ : state) {
    if (state.range(0) == 0) {
      Send(app, window, "Picture1", UserAction::MouseMove, x, 300);
      benchmark::DoNotOptimize(editor.Picture1.picture().Pixels().data());
    } else {
      state.PauseTiming();
      Send(app, window, "Picture1", UserAction::MouseDown, x, 300);
      state.ResumeTiming();
      Send(app, window, "Picture1", UserAction::MouseUp, x, 300);
      benchmark::DoNotOptimize(app.view->form36.Picture1.picture().Pixels().data());
    }
    x = x < 800 ? x + 1 : 100;
  }
}
BENCHMARK(ImageGrayStroke)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
