// One walk for all transfers. Values are held in 0..256, and 256 shows as 255.
#include "imaging/transfer_effects.h"

#include "imaging/effect_samples.h"

namespace pelorium {

namespace {

struct Channels {
  int values[3];  // red, green, blue

  void Hold() {
    for (int& value : values) value = std::clamp(value, 0, 256);
  }
  Colour AsColour() const { return ColourOf(values[0], values[1], values[2]); }
};

void StampBrush(const EffectSettings& settings, Stamper& stamper, Pixel at) {
  settings.circleBrush ? stamper.Circle(at, settings.circleRadius) : stamper.Dot(at);
}

// `value(colour)` gives the new channels, of which the red one is asked about the range; `place(x, y)` where
// they go.
template <typename Value, typename Place>
void TransferEffect(EffectRun& run, Value value, Place place) {
  const EffectSettings& settings = run.settings;
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  StartProgress(run);
  ColumnReader reader(run.foreground);
  Stamper stamper(run.background);
  for (int x = 0; x <= width; x += StepOf(settings.stepX)) {
    const Colour* column = reader.Column(x);
    for (int y = 0; y <= height; y += StepOf(settings.stepY)) {
      run.lastSample = column[y];
      Channels channels = value(column[y]);
      channels.Hold();
      ReduceColours(settings, channels.values, run.levelDivisor);
      run.background.foreColour = channels.AsColour();
      if (settings.range.Holds(channels.values[0])) StampBrush(settings, stamper, place(x, y));
    }
    TellColumn(run, x);
  }
}

Pixel SamePlace(int x, int y) { return {x, y}; }

// The three draws are made at an amount of 0 too, so that a picture does not depend on it further on.
Channels Noisy(EffectRun& run, Colour c, int red, int green, int blue) {
  const EffectSettings& s = run.settings;
  const int r = Red(c) + s.range.offset + s.addRed + Drawn(run.random, red);
  const int g = Green(c) + s.range.offset + s.addGreen + Drawn(run.random, green);
  const int b = Blue(c) + s.range.offset + s.addBlue + Drawn(run.random, blue);
  return {{r, g, b}};
}

// Both sizes: the colour path without noise, and `copies` x `copies` pixels at the place times the factor.
void Resized(EffectRun& run, double factor, int step, int copies) {
  const EffectSettings& s = run.settings;
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  StartProgress(run);
  ColumnReader reader(run.foreground);
  Stamper stamper(run.background);
  for (int x = 0; x <= width; x += step) {
    const Colour* column = reader.Column(x);
    for (int y = 0; y <= height; y += step) {
      const Colour c = column[y];
      run.lastSample = c;
      Channels channels{{Red(c) + s.range.offset + s.addRed, Green(c) + s.range.offset + s.addGreen,
                         Blue(c) + s.range.offset + s.addBlue}};
      channels.Hold();
      ReduceColours(s, channels.values, run.levelDivisor);
      if (!s.range.Holds(channels.values[0])) continue;
      const Pixel at = ToPixel(x * factor, y * factor);
      for (int dy = 0; dy < copies; ++dy) {
        for (int dx = 0; dx < copies; ++dx) stamper.Write({at.x + dx, at.y + dy}, channels.AsColour());
      }
    }
    TellColumn(run, x);
  }
  run.levelDivisor = factor;
}

}  // namespace

void ReduceColours(const EffectSettings& settings, int (&channels)[3], double& levelDivisor) {
  if (!settings.reducesColours) return;
  const int divisor = std::max(settings.reducerDivisor, 1);
  for (int& channel : channels) channel = channel / divisor * divisor;
  levelDivisor = divisor;
}

void TransferGray(EffectRun& run) {
  const EffectSettings& s = run.settings;
  const auto place = [&](int x, int y) {
    run.levelDivisor = s.positionX;
    return ToPixel(x * s.positionX, y * s.positionY);
  };
  TransferEffect(
      run,
      [&](Colour c) {
        const int v = MeanGray(c) + Drawn(run.random, s.grayNoise) + s.range.offset;
        return Channels{{v, v, v}};
      },
      place);
}

void TransferColour(EffectRun& run) {
  const EffectSettings& s = run.settings;
  TransferEffect(
      run, [&](Colour c) { return Noisy(run, c, s.redNoise, s.greenNoise, s.blueNoise); }, SamePlace);
}

// Its noise hangs one bar further on: green's amount on red, the canyon's bar on green.
void Colorize2(EffectRun& run) {
  const EffectSettings& s = run.settings;
  TransferEffect(
      run, [&](Colour c) { return Noisy(run, c, s.greenNoise, s.blackToWhite, s.blueNoise); }, SamePlace);
}

void TransferGrayNegative(EffectRun& run) {
  TransferEffect(
      run,
      [&](Colour c) {
        const int v = 256 - (MeanGray(c) + run.settings.range.offset);
        return Channels{{v, v, v}};
      },
      SamePlace);
}

void TransferColourNegative(EffectRun& run) {
  TransferEffect(
      run,
      [&](Colour c) {
        const int most = 256 - run.settings.range.offset;
        return Channels{{most - Red(c), most - Green(c), most - Blue(c)}};
      },
      SamePlace);
}

void HalfSize(EffectRun& run) { Resized(run, 0.5, 2, 1); }
void DoubleSize(EffectRun& run) { Resized(run, 2, 1, 2); }

}  // namespace pelorium
