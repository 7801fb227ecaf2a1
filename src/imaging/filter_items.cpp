// The rows, and what each does with the surfaces.
#include "imaging/filter_items.h"

#include "imaging/hls.h"

namespace pelorium {

namespace {

using Process = cImageProcessDIB;
using Surfaces = FilterSurfaces;
using Settings = FilterSettings;

template <int type>
void RunType(Process& process, const Surfaces& surfaces, const Settings&) {
  process.FilterType(type);
  process.ProcessImage(surfaces.source, surfaces.working);
}

void Gray(Process& process, const Surfaces& surfaces, const Settings& settings) {
  process.GrayScale(surfaces.source, settings.range);
}

void Lighter(Process& process, const Surfaces& surfaces, const Settings&) {
  process.Lighten(surfaces.source, 20);
}

void Darker(Process& process, const Surfaces& surfaces, const Settings&) {
  process.fade(surfaces.source, 240);
}

void Negative(Process& process, const Surfaces& surfaces, const Settings&) {
  surfaces.working = surfaces.source;
  process.AddImages(surfaces.source, surfaces.working, {-1, -255, -255, -255}, {0, 0, 0, 0});
  surfaces.source.LoadPictureBlt(surfaces.working);
}

void BlackWhite(Process& process, const Surfaces& surfaces, const Settings& settings) {
  process.BlackAndWhite(surfaces.source, surfaces.working, settings.range);
}

void Colorize(Process& process, const Surfaces& surfaces, const Settings& settings) {
  const Hls hls = RGBToHLS(Red(settings.chosen), Green(settings.chosen), Blue(settings.chosen));
  process.Colourise(surfaces.source, hls.hue, hls.saturation);
}

void GrayNoise(Process& process, const Surfaces& surfaces, const Settings& settings) {
  process.AddNoise(surfaces.source, settings.noise, surfaces.random);
}

void ColourNoise(Process& process, const Surfaces& surfaces, const Settings& settings) {
  process.AddNoise2(surfaces.source, settings.noise, surfaces.random);
}

constexpr FilterEnding kForeground = FilterEnding::Foreground, kBackground = FilterEnding::Background;

constexpr FilterItem kItems[] = {
    {"custom", "customit", RunType<kCustom>, kForeground, FilterQuestion::Kernel},
    {"grayscale", "greyit", Gray, kForeground},
    {"sharpen", "sharpenmoreit", RunType<kSharpen>, kForeground},
    {"sharpenmore", "sharptenit", RunType<kSharpenMore>, kForeground},
    {"unsharpen", "unsharpen", RunType<kUnsharpen>, kForeground},
    {"lighten", "lightenit", Lighter, kBackground},
    {"darken", "darkenit", Darker, kBackground},
    {"negative", "negatory", Negative, kBackground},
    {"b/w", "blackwhite", BlackWhite, kBackground},
    {"colorize", "colorizeit", Colorize, kBackground},
    {"emboss", "emobossit", RunType<kEmboss>, kForeground},
    {"soften", "Softenit", RunType<kSoften>, kForeground},
    {"SoftenMore", "SoftenMoreit", RunType<kSoftenMore>, kForeground},
    {"blur", "blur2", RunType<kBlur>, kForeground},
    {"blurmore", "blurmore", RunType<kBlurMore>, kForeground},
    {"maximum", "maxi", RunType<kMaximum>, kForeground},
    {"minimum", "minimun", RunType<kMinimum>, kForeground},
    {"median", "medianit", RunType<kMedian>, kForeground},
    {"noise (gray)", "noisie", GrayNoise, kForeground, FilterQuestion::Noise},
    {"noise (color)", "colnoise", ColourNoise, kForeground, FilterQuestion::Noise},
};

}  // namespace

std::span<const FilterItem> FilterItems() { return kItems; }

}  // namespace pelorium
