// One walk for all; an effect is what it sets up and what it makes of a sample.
#include "imaging/scaled_effects.h"

#include "imaging/effect_samples.h"

namespace pelorium {

namespace {

void StampScaled(const EffectSettings& settings, bool hasBox, Stamper& stamper, Pixel at) {
  if (settings.shape == StampShape::Point) stamper.Dot(at);
  if (settings.shape == StampShape::Circle) stamper.Circle(at, settings.circleRadius);
  if (settings.shape == StampShape::Box && hasBox) stamper.Box(at, settings.pointSize + 1);
}

// `sample(colour)` sets the pen and gives the value that the range is asked about; without `reads` it does
// not look at the colour.
template <typename Sample>
void ScaledEffect(EffectRun& run, bool hasBox, Sample sample, bool reads = true) {
  const EffectSettings& settings = run.settings;
  const double scale = settings.scale;
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  ResizeKeeping(run.background, width * scale, height * scale);
  StartProgress(run);
  hasBox ? run.background.drawWidth = settings.pointSize : run.foreground.drawWidth = 1;
  ColumnReader reader(run.foreground);
  Stamper stamper(run.background);
  for (int x = 0; x <= width; x += StepOf(settings.stepX)) {
    const Colour* column = reader.Column(x);
    for (int y = 0; y <= height; y += StepOf(settings.stepY)) {
      if (reads) run.lastSample = column[y];
      if (settings.range.Holds(sample(column[y]))) {
        StampScaled(settings, hasBox, stamper, ToPixel(x * scale, y * scale));
      }
    }
    TellColumn(run, x);
  }
  RestoreWidths(run);
}

// Which channels of a colour-named effect take the level; the others are 1.
struct LevelChannels {
  bool red, green, blue;
};

double Negative(Colour c) { return std::max(255 - RedGreenGray(c), 1); }

template <typename GrayOf>
void LevelEffect(EffectRun& run, LevelChannels channels, GrayOf grayOf) {
  ScaledEffect(run, false, [&](Colour c) {
    const Level level = Quantise(static_cast<int>(grayOf(c)), run.levelDivisor);
    run.background.foreColour = ColourOf(channels.red ? level.value : 1.0, channels.green ? level.value : 1.0,
                                         channels.blue ? level.value : 1.0);
    return level.number;
  });
}

}  // namespace

void CyanSlow(EffectRun& run) { LevelEffect(run, {false, true, true}, RedGreenGray); }
void Yellow(EffectRun& run) { LevelEffect(run, {true, true, false}, RedGreenGray); }
void Black(EffectRun& run) { LevelEffect(run, {true, true, true}, RedGreenGray); }
void BlueLevels(EffectRun& run) { LevelEffect(run, {false, false, true}, RedGreenGray); }
void GreenLevels(EffectRun& run) { LevelEffect(run, {false, true, false}, RedGreenGray); }
void RedLevels(EffectRun& run) { LevelEffect(run, {true, false, false}, RedGreenGray); }
void MagentaLevels(EffectRun& run) { LevelEffect(run, {true, false, true}, RedGreenGray); }
void GrayNegative(EffectRun& run) { LevelEffect(run, {true, true, true}, Negative); }

void ColourLevels(EffectRun& run) {
  ScaledEffect(run, false, [&](Colour c) {
    const auto level = [&](int channel) { return Quantise(channel, run.levelDivisor).value; };
    run.background.foreColour = ColourOf(level(Red(c)), level(Green(c)), level(Blue(c)));
    return Quantise(RedGreenGray(c), run.levelDivisor).number;
  });
}

void Poster(EffectRun& run) {
  run.background.foreColour = run.settings.chosen;
  ScaledEffect(run, true, MeanGray);
}

void Threshold(EffectRun& run) {
  run.background.foreColour = run.foreground.foreColour;
  run.levelDivisor = 0;
  ScaledEffect(run, true, MeanGray);
}

// Ten bands, the darkest for black: below 25, then up to 50, 75 and so on.
void GrayTenLevels(EffectRun& run) {
  run.background.foreColour = run.foreground.foreColour;
  ScaledEffect(run, true, [&](Colour c) {
    const int gray = MeanGray(c);
    const int band = gray < 25 ? 10 : std::max(10 - std::max(gray - 1, 25) / 25, 1);
    const int level = 250 - 25 * band;
    run.background.foreColour = Rgb(level, level, level);
    return gray;
  });
}

void Solid(EffectRun& run) {
  run.background.foreColour = run.settings.chosen;
  ScaledEffect(
      run, true, [&](Colour) { return run.settings.addRed; }, false);
}

}  // namespace pelorium
