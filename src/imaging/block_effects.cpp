// One walk for all. Only the place within a block is scaled, not the block's own place: at other scales than
// 1 the blocks lie over each other or leave gaps.
#include "imaging/block_effects.h"

#include "imaging/effect_samples.h"

namespace pelorium {

namespace {

constexpr int kSide = 9;

struct Block {
  Colour colours[kSide][kSide];  // [dy][dx]
  int x[kSide], y[kSide];        // where they go

  Block(const PixelGrid& from, int left, int top, double scale) {
    for (int d = 0; d < kSide; ++d) {
      x[d] = ToPixelPlace(left + scale * d);
      y[d] = ToPixelPlace(top + scale * d);
    }
    for (int dy = 0; dy < kSide; ++dy) {
      for (int dx = 0; dx < kSide; ++dx) colours[dy][dx] = ReadPixel(from, {left + dx, top + dy});
    }
  }
};

// `colourOf(colour, gray)` is the pen for an entry. Where entries share a pixel the last one stays, and
// columns of a block come before rows.
template <typename ColourFor>
void BlockEffect(EffectRun& run, ColourFor colourFor) {
  const EffectSettings& settings = run.settings;
  const int width = run.foreground.PixelWidth(), height = run.foreground.PixelHeight();
  const double scale = settings.scale;
  ResizeKeeping(run.background, width * std::max(1.0, scale), height * std::max(1.0, scale));
  StartProgress(run);
  const PixelGrid from = run.foreground.Edit(), to = run.background.Edit();
  Colour pen = run.background.foreColour;
  for (int left = 0; left <= width; left += kSide) {
    for (int top = 0; top <= height; top += kSide) {
      const Block block(from, left, top, scale);
      for (int dx = 0; dx < kSide; ++dx) {
        for (int dy = 0; dy < kSide; ++dy) {
          const int gray = MeanGray(block.colours[dy][dx]);
          pen = colourFor(block.colours[dy][dx], gray);
          if (settings.range.Holds(gray)) WritePixel(to, {block.x[dx], block.y[dy]}, pen);
        }
      }
      run.lastSample = block.colours[kSide - 1][kSide - 1];
    }
    TellColumn(run, left);
  }
  run.background.foreColour = pen;
}

int Raised(const EffectRun& run, int gray) { return std::clamp(run.settings.range.offset + gray, 0, 255); }

}  // namespace

void CyanFast(EffectRun& run) {
  BlockEffect(run, [&](Colour, int gray) { return Rgb(1, Raised(run, gray), Raised(run, gray)); });
}

void MagentaFast(EffectRun& run) {
  BlockEffect(run, [&](Colour, int gray) { return Rgb(Raised(run, gray), 1, Raised(run, gray)); });
}

void YellowFast(EffectRun& run) {
  BlockEffect(run, [&](Colour, int gray) { return Rgb(Raised(run, gray), Raised(run, gray), 1); });
}

void Poster2(EffectRun& run) {
  BlockEffect(run, [&](Colour, int) { return run.settings.chosen; });
}

void GrayFast(EffectRun& run) {
  BlockEffect(run, [&](Colour, int gray) {
    const int v = Raised(run, std::max(255 - gray, 1));
    return Rgb(v, v, v);
  });
}

void ColourFast(EffectRun& run) {
  BlockEffect(run, [&](Colour c, int) {
    const EffectSettings& s = run.settings;
    return ColourOf(Red(c) + s.range.offset + s.addRed, Green(c) + s.range.offset + s.addGreen,
                    Blue(c) + s.range.offset + s.addBlue);
  });
}

}  // namespace pelorium
