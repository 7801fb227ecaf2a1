// The three walks.
#include "imaging/dot_effects.h"

#include "imaging/effect_samples.h"

namespace pelorium {

void Halftone(EffectRun& run) {
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  run.background.foreColour = run.foreground.foreColour;
  run.levelDivisor = 0;
  StartProgress(run);
  ColumnReader reader(run.foreground);
  Stamper stamper(run.background);
  for (int x = 1; x <= width; x += 2) {
    const Colour* column = reader.Column(x);
    for (int y = 1; y <= height; y += 2) {
      run.lastSample = column[y];
      const int gray = MeanGray(column[y]);
      int band = gray < 32 ? 8 : 7;
      for (int limit = 64; limit <= 224; limit += 32) band -= gray > limit ? 1 : 0;
      run.background.drawWidth = band;
      stamper.Dot({4 * x, 4 * y});
    }
    TellColumn(run, x);
  }
  RestoreWidths(run);
}

void WhiteNoise(EffectRun& run) {
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  StartProgress(run);
  ColumnReader reader(run.foreground);
  Stamper stamper(run.background);
  for (int x = 0; x < width; ++x) {
    const Colour* column = reader.Column(x);
    for (int y = 0; y < height; ++y) {
      run.lastSample = column[y];
      const int threshold = Drawn(run.random, run.settings.grayNoise) + 1;
      if (MeanGray(column[y]) < threshold) stamper.Dot({x, y});
    }
    TellColumn(run, x);
  }
}

namespace {

// The error's share in sixteenths, downwards.
int Share(int error, int sixteenths) { return error * sixteenths >> 4; }

// A channel loses nothing below 0 and shows nothing above 255.
Colour Moved(Colour c, int by) { return ColourOf(Red(c) + by, Green(c) + by, Blue(c) + by); }

// One row of the diffusion; the errors of the row above come in, those of this one go out.
void DiffuseRow(EffectRun& run, Stamper& dots, const PixelGrid& grid, int y, const std::vector<int>& above,
                std::vector<int>& errors) {
  const int width = grid.width, threshold = run.settings.diffuseThreshold;
  for (int x = 0; x < width; ++x) {
    const auto at = static_cast<std::size_t>(x);
    Colour c = *grid.At({x, y});
    if (x > 0 && y > 0) c = Moved(c, Share(above[at - 1], 1));
    if (x > 0) c = Moved(c, Share(errors[at - 1], 7));
    if (y > 0) c = Moved(c, Share(above[at], 5));
    const int gray = MeanGray(c);
    if (gray < 128) dots.Dot({x, y});
    errors[at] = threshold - gray;
    if (y > 0) c = Moved(c, Share(above[at + 1], 3));
    *grid.At({x, y}) = c;
  }
  errors[static_cast<std::size_t>(width)] =
      threshold - MeanGray(kWhite);  // the column outside is a sample too
}

}  // namespace

// The errors are told down the columns: a pixel takes them from the left above, from the left and from above
// before it is read, and from the right above afterwards. In this order it can be walked row by row.
void ErrorDiffuse(EffectRun& run) {
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  run.foreground.drawWidth = run.background.drawWidth = 1;
  StartProgress(run);
  const PixelGrid grid = run.foreground.Edit();
  Stamper dots(run.background);
  std::vector<int> above(static_cast<std::size_t>(width) + 1), errors(above.size());
  for (int y = 0; y < height; ++y) {
    DiffuseRow(run, dots, grid, y, above, errors);
    above.swap(errors);
  }
  for (int x = 0; x <= width; ++x) TellColumn(run, x);
  run.lastSample = kWhite;
  run.foreground.foreColour =
      Moved(kWhite, Share(run.settings.diffuseThreshold - 255, 3));  // the last write, outside
  RestoreWidths(run);
}

}  // namespace pelorium
