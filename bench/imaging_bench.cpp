// Filters, effects, brushes and files on images of 2048 x 2048, each beside a plain copy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>

#include "imaging/image_effects.h"
#include "imaging/image_process.h"
#include "imaging/picture_marks.h"
#include "platform/picture_files.h"

namespace pelorium {
namespace {

constexpr int kSide = 2048;

std::vector<std::uint32_t> NoisePixels() {
  RandomSeries random;
  std::vector<std::uint32_t> pixels(kSide * kSide);
  for (std::uint32_t& pixel : pixels) pixel = static_cast<std::uint32_t>(random.Next() * (1 << 24));
  return pixels;
}

Picture NoiseImage() {
  Picture picture(kSide, kSide);
  picture.SetPixels(NoisePixels());
  return picture;
}

cDIBSection NoiseSurface() {
  cDIBSection surface;
  surface.CreateFromPicture(NoiseImage());
  return surface;
}

// The bytes of a surface, one by one: what every filter must at least do.
void ImageCopyLoop(benchmark::State& state) {
  const cDIBSection source = NoiseSurface();
  cDIBSection target = source;
  for (auto _ : state) {
    std::memcpy(target.DIBSectionBitsPtr(), source.Row(0),
                static_cast<std::size_t>(source.BytesPerScanLine()) * kSide);
    benchmark::DoNotOptimize(target.DIBSectionBitsPtr());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(ImageCopyLoop)->Unit(benchmark::kMillisecond);

// The argument is the side of a kernel of ones.
void ImageConvolution(benchmark::State& state) {
  const cDIBSection source = NoiseSurface();
  cDIBSection working = source;
  FilterKernel kernel(static_cast<int>(state.range(0)));
  for (int i = -kernel.half(); i <= kernel.half(); ++i) {
    for (int j = -kernel.half(); j <= kernel.half(); ++j) kernel.weight += kernel.At(i, j) = 1;
  }
  for (auto _ : state) ApplyConvolution(source, working, kernel);
}
BENCHMARK(ImageConvolution)->Arg(3)->Arg(5)->Unit(benchmark::kMillisecond);

// A filter type from the surface to the picture that shows it.
void ImageFilterToPixels(benchmark::State& state) {
  cDIBSection source = NoiseSurface(), working;
  Picture shown(kSide, kSide);
  cImageProcessDIB process;
  process.FilterType(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    process.ProcessImage(source, working);
    source.PaintPicture(shown);
  }
}
BENCHMARK(ImageFilterToPixels)->DenseRange(kBlur, kMaximum)->Unit(benchmark::kMillisecond);

template <typename Filter>
void MeasureFilter(benchmark::State& state, Filter filter) {
  cDIBSection surface = NoiseSurface(), working = surface;
  for (auto _ : state) filter(surface, working);
}
BENCHMARK_CAPTURE(MeasureFilter, grayscale, [](auto& s, auto&) { GrayScale(s, {}); })
    -> Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureFilter, negative, [](auto& s, auto& w) {
  AddImages(s, w, {-1, -255, -255, -255}, {});
}) -> Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureFilter, lighten, [](auto& s, auto&) { Lighten(s, 20); })
    -> Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureFilter, darken, [](auto& s, auto&) { Fade(s, 240); })
    -> Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureFilter, colorize, [](auto& s, auto&) { Colourise(s, 1.5F, 0.5F); })
    -> Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeasureFilter, blackwhite, [](auto& s, auto& w) { BlackAndWhite(s, w, {}); })
    -> Unit(benchmark::kMillisecond);

// Every effect of the menu by its number, points at step 1.
void ImageEffectRun(benchmark::State& state) {
  const std::vector<std::uint32_t> pixels = NoisePixels();
  Picture foreground = NoiseImage(), background(kSide, kSide);
  EffectSettings settings;
  settings.stepX = settings.stepY = 1;
  settings.grayNoise = settings.redNoise = settings.greenNoise = settings.blueNoise = 20;
  RandomSeries random;
  const ImageEffect& effect = ImageEffects()[static_cast<std::size_t>(state.range(0))];
  state.SetLabel(effect.caption);
  for (auto _ : state) {
    double levelDivisor = 16;
    foreground.SetPixels(pixels);
    EffectRun run{settings, foreground, background, levelDivisor, random};
    effect.run(run);
  }
}
BENCHMARK(ImageEffectRun)->DenseRange(0, 19)->Unit(benchmark::kMillisecond);

void ImageBlurWhole(benchmark::State& state) {
  Picture picture = NoiseImage();
  for (auto _ : state) BlurWholePicture(picture);
}
BENCHMARK(ImageBlurWhole)->Unit(benchmark::kMillisecond);

// A patch of 40, and a blur brush of 30 x 30.
void ImageBrushMove(benchmark::State& state) {
  Picture foreground = NoiseImage(), background = NoiseImage();
  BrushSettings settings;
  settings.patch = state.range(0) == 0;
  settings.blurs = !settings.patch;
  settings.square = 30;
  RandomSeries random;
  const ModelStore model;
  double x = 100;
  for (auto _ : state) {
    MoveBrush({foreground, background}, settings, {x, 500, true, true}, random, model, 0);
    x = x < 1900 ? x + 1 : 100;
    benchmark::DoNotOptimize(foreground.Pixels().data());
  }
}
BENCHMARK(ImageBrushMove)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void ImageFile(benchmark::State& state) {
  Picture picture = NoiseImage();
  const auto path = std::filesystem::temp_directory_path() / "pelorium_bench.bmp";
  SavePicture(picture, path);
  for (auto _ : state) state.range(0) == 0 ? LoadPicture(picture, path) : SavePicture(picture, path);
  state.SetLabel(state.range(0) == 0 ? "open" : "save");
  std::filesystem::remove(path);
}
BENCHMARK(ImageFile)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
