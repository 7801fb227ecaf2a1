// The effects on pictures of a few pixels, worked out by hand; and the quick walks against the plain ones.
#include "imaging/dot_effects.h"
#include "imaging/image_effects.h"
#include "imaging/picture_text.h"
#include "support/harness.h"

namespace pelorium {
namespace {

struct Bench {
  Picture foreground, background;
  EffectSettings settings;
  double levelDivisor = 0;
  RandomSeries random;

  Bench(Picture f, Picture b) : foreground(std::move(f)), background(std::move(b)) {
    settings.stepX = settings.stepY = 1;
    foreground.foreColour = Rgb(9, 9, 9);
    background.backColour = kTestGround;
  }

  std::string Run(const std::string& caption) {
    EffectRun run{settings, foreground, background, levelDivisor, random};
    for (const auto table : {ImageEffects(), SpareEffects()}) {
      for (const ImageEffect& effect : table) {
        if (effect.caption == caption) effect.run(run);
      }
    }
    return PictureText(background);
  }
};

struct Case {
  const char* caption;
  std::string expected;
};

TEST(Effects, StandInTheOrderOfTheMenu) {
  std::string items;
  for (const ImageEffect& effect : ImageEffects()) items += std::string(effect.item) + " ";
  EXPECT_EQ(
      items,
      "sizeithalf errordiffuseit sizeit greyten addcolorit solidit whitenoise thresholdit magentafast yel "
      "cyanfast ci posterit poster2 halftoneier transfergray transfercolor transferneg transferto2ndcolr "
      "blk ");
  EXPECT_EQ(SpareEffects().size(), 9u);
}

// The sample (100, 150, 32) has the gray 94, and 133 where green counts twice.
TEST(Effects, ColourOfOneSample) {
  const Case cases[] = {
      {"cyan", "1/100/100"},
      {"magenta", "100/1/100"},
      {"yellow, fast", "100/100/1"},
      {"gray, fast", "167"},          // 255 - 94 + 6
      {"colour, fast", "116/176/8"},  // 6 and 10, 20, -30 on top
      {"poster2", "150"},
      {"cyan (slow)", "1/128/128"},  // 133 in levels of 32
      {"yellow", "128/128/1"},
      {"black", "128"},
      {"blue", "1/1/128"},
      {"green", "1/128/1"},
      {"red", "128/1/1"},
      {"magenta, slow", "128/1/128"},
      {"gray negative", "96"},  // 122
      {"colour levels", "96/128/32"},
      {"poster", "150"},
      {"threshold", "9"},
      {"gray 10 levels", "75"},  // band 7
      {"solid (2nd)", "150"},
      {"transfer to Background (gray)", "100"},
      {"transfer to Background (color)", "116/176/8"},
      {"transfer to Background (gray neg)", "156"},
      {"transfer to Background (color neg)", "150/100/218"},
      {"size 1/2", "116/176/8"},
  };
  for (const Case& c : cases) {
    Bench bench(Empty(1, 1), Empty(1, 1));
    bench.foreground.SetPixels({Rgb(100, 150, 32)});
    bench.settings.range.offset = 6;
    bench.settings.addRed = 10, bench.settings.addGreen = 20, bench.settings.addBlue = -30;
    bench.levelDivisor = 32;
    bench.settings.stepX = bench.settings.stepY = 2;  // not the white column and row outside
    EXPECT_EQ(bench.Run(c.caption), c.expected) << c.caption;
  }
}

TEST(Effects, RangeIsAskedAboutTheValueOfEachFamily) {
  const auto marked = [](const char* caption, int low, int high) {
    Bench bench(Empty(1, 1), Empty(1, 1));
    bench.foreground.SetPixels({Rgb(100, 150, 32)});
    bench.settings.range = {low, high, 6};
    bench.settings.addRed = 10;
    bench.settings.stepX = bench.settings.stepY = 2;
    bench.levelDivisor = 32;
    return bench.Run(caption) != ".";
  };
  const struct {
    const char* caption;
    int value;
  } kValues[] = {{"cyan", 94},
                 {"poster", 94},
                 {"gray 10 levels", 94},
                 {"black", 4},
                 {"solid (2nd)", 10},
                 {"size 1/2", 116},
                 {"poster2", 94},
                 {"gray negative", 3},
                 {"transfer to Background (gray)", 100},
                 {"transfer to Background (color)", 116},
                 {"transfer to Background (color neg)", 150}};
  for (const auto& [caption, value] : kValues) {
    EXPECT_TRUE(marked(caption, value, value)) << caption;
    EXPECT_FALSE(marked(caption, value + 1, 256)) << caption;
    EXPECT_FALSE(marked(caption, 0, value - 1)) << caption;
  }
}

TEST(Effects, BandsAtTheirLimits) {
  Bench bench(GrayPicture(8, {24, 25, 50, 51, 200, 201, 225, 226}), Empty(8, 1));
  EXPECT_EQ(bench.Run("gray 10 levels"), "0 25 25 50 175 200 200 225");
  std::string bands;
  for (const int gray : {31, 32, 64, 65, 224, 225, 255}) {
    Bench dots(GrayPicture(2, {0, 0, 0, gray}), Empty(16, 16));
    dots.settings.stepX = 99;
    EffectRun run{dots.settings, dots.foreground, dots.background, dots.levelDivisor, dots.random};
    Halftone(run);  // one sample at (1, 1), its dot about (4, 4)
    int width = 0;
    for (int x = 0; x < 16; ++x) width += dots.background.PixelAt(x, 4) == Rgb(9, 9, 9) ? 1 : 0;
    bands += std::to_string(width) + " ";
  }
  EXPECT_EQ(bands, "8 7 7 6 2 1 1 ");
}

TEST(Effects, ScalePlacesAndShapes) {
  Bench bench(GrayPicture(2, {10, 60, 110, 160}), Empty(2, 2));
  bench.settings.scale = 2;
  EXPECT_EQ(bench.Run("gray 10 levels"), "0 . 50 . | . . . . | 100 . 150 . | . . . .");
  bench.settings.scale = 0.5;  // 0.5 goes to 0, and the white samples outside to 1
  EXPECT_EQ(bench.Run("gray 10 levels"), "150");
  bench.settings.scale = 1;
  bench.settings.shape = StampShape::Box;
  bench.settings.pointSize = 1;  // a box of 2 x 2
  bench.settings.range.high = 20;
  EXPECT_EQ(bench.Run("gray 10 levels"), "0 0 | 0 0");
  bench.settings.range.high = 256;
  bench.levelDivisor = 1;
  EXPECT_EQ(bench.Run("black"), "0 0 | 0 0");  // the colour-named ones know no box
}

TEST(Effects, BlocksScaleTheOffsetOnly) {
  Picture wide = Empty(10, 1);
  std::vector<std::uint32_t> pixels;
  for (int x = 0; x < 10; ++x) pixels.push_back(Rgb(x, x, x));
  wide.SetPixels(pixels);
  Bench bench(wide, Empty(1, 1));
  bench.settings.scale = 2;
  const std::string doubled = bench.Run("gray, fast");
  // Block 0 at 0, 2 to 16; block 9 at 9 (level 9) and then white, 1; the second row lies outside the blocks'
  // first.
  EXPECT_EQ(doubled.substr(0, doubled.find(" |")),
            "255 . 254 . 253 . 252 . 251 246 250 1 249 1 248 1 247 1 . 1");
  EXPECT_EQ(bench.background.PixelHeight(), 2);
  Bench half(wide, Empty(10, 1));
  half.settings.scale = 0.5;  // 4.5 goes to 4 with the later one on top
  EXPECT_EQ(half.Run("gray, fast"), "1 1 1 1 1 . . . . 1");
}

TEST(Effects, SizesWriteOneOrFourPixels) {
  Bench bench(GrayPicture(2, {10, 20, 30, 40}), Empty(3, 3));
  EXPECT_EQ(bench.Run("size 2x"), "10 10 20 | 10 10 20 | 30 30 40");
  EXPECT_EQ(bench.levelDivisor, 2);
  bench.settings.reducesColours = true;
  bench.settings.reducerDivisor = 16;
  EXPECT_EQ(bench.Run("size 1/2"), "0 240 20 | 240 240 20 | 30 30 40");  // white outside, 255 in steps of 16
  EXPECT_EQ(bench.levelDivisor, 0.5);
}

TEST(Effects, LevelDivisorIsLeftByWhoSetsIt) {
  Bench bench(GrayPicture(1, {50}), Empty(1, 1));
  EXPECT_TRUE(Raises(FaultKind::DivisionByZero, [&] { bench.Run("yellow"); }));
  bench.settings.positionX = 0.25;
  bench.settings.range.low = 1000;
  bench.Run("transfer to Background (gray)");
  EXPECT_EQ(bench.levelDivisor, 0);
  bench.settings.range.low = 0;
  bench.Run("transfer to Background (gray)");
  EXPECT_EQ(bench.levelDivisor, 0.25);
  bench.settings.reducesColours = true;
  bench.settings.reducerDivisor = 8;
  bench.Run("transfer to Background (color)");
  EXPECT_EQ(bench.levelDivisor, 8);
  bench.Run("threshold");
  EXPECT_EQ(bench.levelDivisor, 0);
}

TEST(Effects, TransfersDrawColumnByColumn) {
  Bench bench(GrayPicture(2, {100, 110, 120, 130}), Empty(2, 2));
  bench.settings.redNoise = 50, bench.settings.greenNoise = -50, bench.settings.blackToWhite = 9;
  RandomSeries plain;
  const auto draw = [&](int amount) { return static_cast<int>(std::floor(plain.Next() * amount)); };
  std::string places[3][3];
  for (int x = 0; x <= 2; ++x) {
    for (int y = 0; y <= 2; ++y) {
      const int level = 100 + 10 * x + 20 * y, red = draw(50), green = draw(-50), blue = draw(0);
      places[y][x] = ColourText(Rgb(level + red, level + green, level + blue));
    }
  }
  EXPECT_EQ(bench.Run("transfer to Background (color)"),
            places[0][0] + " " + places[0][1] + " | " + places[1][0] + " " + places[1][1]);
  for (int i = 0; i < 27; ++i) plain.Next();
  bench.Run("colorize2");
  EXPECT_EQ(bench.random.Next(), plain.Next());  // as many draws
}

TEST(Effects, ReadTheControlsAtEachSample) {
  Bench bench(GrayPicture(3, {100, 100, 100}), Empty(3, 1));
  EffectRun run{bench.settings, bench.foreground, bench.background, bench.levelDivisor, bench.random};
  std::string told;
  run.onStart = [&](int max) { told = "max " + std::to_string(max); };
  run.onColumn = [&](int x) {
    told += " " + std::to_string(x);
    bench.settings.range.offset += 7;
    bench.settings.stepX = 2;
  };
  for (const ImageEffect& effect : ImageEffects()) {
    if (effect.caption == std::string("transfer to Background (gray)")) effect.run(run);
  }
  EXPECT_EQ(PictureText(bench.background), "100 . 107");
  EXPECT_EQ(told, "max 5 0 2");
}

TEST(Effects, WhiteNoiseDotsTheDark) {
  Bench bench(GrayPicture(3, {0, 20, 200}), Empty(3, 1));
  bench.background.foreColour = Rgb(1, 1, 1);
  EXPECT_EQ(bench.Run("white noise"), "1 . .");  // an amount of 0 makes the threshold 1
  bench.settings.grayNoise = -255;
  bench.background = Empty(3, 1);
  EXPECT_EQ(bench.Run("white noise"), ". . .");
}

int Step(int error, int weight) { return static_cast<int>(std::floor(error * weight / 16.0)); }

void PlainDiffusion(Picture& f, Picture& b, int threshold) {
  const PixelGrid grid = f.Edit(), dots = b.Edit();
  const int kNeighbours[4][3] = {{1, 0, 7}, {1, 1, 1}, {0, 1, 5}, {-1, 1, 3}};
  for (int x = 0; x <= grid.width; ++x) {
    for (int y = 0; y <= grid.height; ++y) {
      const auto read = [&](Pixel p) { return grid.Holds(p) ? *grid.At(p) : Rgb(255, 255, 255); };
      const Colour c = read({x, y});
      const int gray = (Red(c) + Green(c) + Blue(c)) / 3;
      if (gray < 128 && dots.Holds({x, y})) *dots.At({x, y}) = b.foreColour;
      for (const auto& [dx, dy, weight] : kNeighbours) {
        const Colour old = read({x + dx, y + dy});
        const int by = Step(threshold - gray, weight);
        const auto level = [&](int channel) { return std::min(std::max(channel + by, 0), 255); };
        f.foreColour = Rgb(level(Red(old)), level(Green(old)), level(Blue(old)));
        if (grid.Holds({x + dx, y + dy})) *grid.At({x + dx, y + dy}) = f.foreColour;
      }
    }
  }
}

TEST(Effects, ErrorDiffusionEqualsThePlainWalk) {
  for (const auto& [width, height, threshold] :
       {std::tuple{1, 1, 128}, {1, 9, 0}, {2, 5, 255}, {23, 17, 128}}) {
    Bench bench(NoisePicture(width, height), Empty(width, height));
    Picture f = bench.foreground, b = bench.background;
    bench.settings.diffuseThreshold = threshold;
    const std::string dots = bench.Run("errordiffuse");
    PlainDiffusion(f, b, threshold);
    EXPECT_EQ(dots, PictureText(b));
    EXPECT_EQ(PictureText(bench.foreground), PictureText(f));
    EXPECT_EQ(bench.foreground.foreColour, f.foreColour);
  }
}

TEST(Effects, RefuseAnImageTooLarge) {
  Bench bench(Empty(32767, 2), Empty(3, 1));
  bench.settings.scale = 2;
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { bench.Run("poster"); }));
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { bench.Run("cyan"); }));
  EXPECT_EQ(PictureText(bench.background), ". . .");
}

}  // namespace
}  // namespace pelorium
