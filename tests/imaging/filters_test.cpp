// The filters: the quick ways give what the plain loops give, and small pictures worked out by hand.
#include <cmath>
#include <string>

#include "imaging/filter_grid.h"
#include "imaging/filter_items.h"
#include "imaging/hls.h"
#include "imaging/image_process.h"
#include "imaging/numbered_fault.h"
#include "support/harness.h"

namespace pelorium {
namespace {

cDIBSection Noise(int width, int height, double seed = 1) {
  RandomSeries random;
  random.Seed(seed);
  cDIBSection surface;
  surface.Create(width, height);
  for (int y = 0; y < height; ++y) {
    for (int k = 0; k < width * 3; ++k) surface.Row(y)[k] = static_cast<std::uint8_t>(random.Next() * 256);
  }
  return surface;
}

// Row by row from the bottom; a pixel as one number if it is gray, else as blue/green/red.
std::string Shown(const cDIBSection& surface) {
  std::string text;
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      const std::uint8_t* b = surface.Row(y) + 3 * x;
      text += std::to_string(b[0]);
      if (b[1] != b[0] || b[2] != b[0]) text += "/" + std::to_string(b[1]) + "/" + std::to_string(b[2]);
      text += x + 1 < surface.Width() ? " " : y + 1 < surface.Height() ? " | " : "";
    }
  }
  return text;
}

cDIBSection Grays(int width, const std::vector<int>& levels) {
  cDIBSection surface;
  surface.Create(width, static_cast<int>(levels.size()) / width);
  for (std::size_t i = 0; i < levels.size(); ++i) {
    const int x = static_cast<int>(i) % width, y = static_cast<int>(i) / width;
    std::fill_n(surface.Row(y) + 3 * x, 3, static_cast<std::uint8_t>(levels[i]));
  }
  return surface;
}

int Bounded(long long value) { return static_cast<int>(std::min(255LL, std::max(0LL, value))); }

cDIBSection PlainConvolution(const cDIBSection& source, const FilterKernel& kernel) {
  cDIBSection working = source;
  const int half = kernel.half();
  for (int x = half * 3; x <= (source.Width() - 1) * 3 - half * 3; x += 3) {
    for (int y = half; y <= source.Height() - 1 - half; ++y) {
      for (int channel = 0; channel < 3; ++channel) {
        long long sum = 0;
        for (int i = -half; i <= half; ++i) {
          for (int j = -half; j <= half; ++j) sum += source.Row(y + j)[x + 3 * i + channel] * kernel.At(i, j);
        }
        working.Row(y)[x + channel] = static_cast<std::uint8_t>(Bounded(sum / kernel.weight));
      }
    }
  }
  return working;
}

TEST(Filters, ConvolutionEqualsThePlainLoop) {
  RandomSeries random;
  for (const int size : {1, 3, 5, 7, 9}) {
    for (const int range : {1, 2, 4, 7, 40, 5000}) {
      FilterKernel kernel(size);
      for (int i = -kernel.half(); i <= kernel.half(); ++i) {
        for (int j = -kernel.half(); j <= kernel.half(); ++j) {
          kernel.At(i, j) = static_cast<int>(random.Next() * (2 * range + 1)) - range;
        }
      }
      for (const int weight : {1, 2, 3, 7, 9, 25, 44, 127, 128, 255, 32640, 40000, -1, -5}) {
        kernel.weight = weight;
        const cDIBSection source = Noise(67 + size, 12, size);
        cDIBSection working = source;
        ApplyConvolution(source, working, kernel);
        ASSERT_EQ(Shown(working), Shown(PlainConvolution(source, kernel)))
            << size << " " << range << " " << weight;
      }
    }
  }
}

TEST(Filters, QuotientsOfAllSumsAreExact) {
  FilterKernel kernel(1);
  cDIBSection source;
  source.Create(256, 1);
  for (int x = 0; x < 256; ++x) std::fill_n(source.Row(0) + 3 * x, 3, static_cast<std::uint8_t>(x));
  for (int value = 1; value <= 128; ++value) {
    kernel.At(0, 0) = value;
    for (int weight = 1; weight <= 200; ++weight) {
      kernel.weight = weight;
      cDIBSection working = source;
      ApplyConvolution(source, working, kernel);
      for (int x = 0; x < 256; ++x)
        ASSERT_EQ(working.Row(0)[3 * x], Bounded(x * value / weight)) << value << weight;
    }
  }
}

TEST(Filters, EachTypeOnAStep) {
  const auto run = [](int type, int width = 4) {
    cDIBSection source = Grays(width, width == 4 ? std::vector<int>{0, 0, 90, 90, 0, 0, 90, 90, 9, 0, 90, 99}
                                                 : std::vector<int>{0, 0, 90, 9, 0, 90});
    cDIBSection working;
    cImageProcessDIB process;
    process.FilterType(type);
    process.ProcessImage(source, working);
    return Shown(source);
  };
  const std::string first = "0 0 90 90 | 0 ", last = " 90 | 9 0 90 99";
  EXPECT_EQ(run(kBlur), first + "31 61" + last);         // 279 / 9, 549 / 9
  EXPECT_EQ(run(kSoften), first + "23 68" + last);       // 279 / 12, 819 / 12
  EXPECT_EQ(run(kSharpen), first + "0 127" + last);      // (1350 - 459) / 7
  EXPECT_EQ(run(kSharpenMore), first + "0 180" + last);  // 450 - 270
  EXPECT_EQ(run(kMedian), first + "31 61" + last);
  EXPECT_EQ(run(kMinimum), first + "0 0" + last);
  EXPECT_EQ(run(kMaximum), first + "90 99" + last);
  EXPECT_EQ(run(kUnsharpen), "0 0 90 90 | 0 0 119 90 | 9 0 90 99");
  EXPECT_EQ(run(kEmboss), "127 127 217 217 | 127 217 226 217 | 136 127 217 226");
  EXPECT_EQ(run(kNoFilter), run(kBlurMore));  // too low for five rows
  EXPECT_EQ(run(kEmboss, 3), "127 127 217 | 136 127 217");
}

TEST(Filters, RefuseWhatIsNoFilter) {
  cImageProcessDIB process;
  const auto refusal = [](auto&& call) -> std::string {
    try {
      call();
    } catch (const NumberedFault& fault) {
      char number[16];
      std::snprintf(number, sizeof number, "%X ", fault.number());
      return number + fault.source() + " " + fault.text();
    }
    return "none";
  };
  const std::string size =
      "8004051A Pelorium.cImageProcess Invalid size.  Size should be an odd number from 3 to 9";
  EXPECT_EQ(refusal([&] { process.FilterType(0); }), "8004051A Pelorium.cImageProcess Invalid filter types.");
  EXPECT_EQ(refusal([&] { process.FilterType(14); }),
            "8004051A Pelorium.cImageProcess Invalid filter types.");
  EXPECT_EQ(refusal([&] { process.FilterArraySize(0); }),
            "80040519 Pelorium.cImageProcess Size must be an odd number");
  EXPECT_EQ(refusal([&] { process.FilterArraySize(11); }), size);
  EXPECT_EQ(refusal([&] { process.FilterArraySize(-2); }), size);
  EXPECT_EQ(refusal([&] { process.FilterArraySize(1); }), "none");
  process.FilterArraySize(3);
  process.FilterValue(0, 1, 5);
  process.FilterType(kCustom);
  EXPECT_EQ(process.FilterValue(0, 1), 5);
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { process.FilterValue(2, 0, 1); }));
  cDIBSection source = Noise(4, 4), working;
  const std::string before = Shown(source);
  EXPECT_TRUE(Raises(FaultKind::DivisionByZero, [&] { process.ProcessImage(source, working); }));
  process.FilterWeight(1);
  process.FilterValue(0, 1, 2000000000);
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { process.ProcessImage(source, working); }));
  EXPECT_EQ(Shown(source), before);
}

// Which image shows a filter in the end, and what the left one of two pixels becomes.
TEST(Filters, StandInTheOrderOfTheMenu) {
  std::string told;
  for (const FilterItem& item : FilterItems()) {
    cDIBSection source = Grays(2, {100, 240}), working;
    RandomSeries random;
    cImageProcessDIB process;
    if (item.question == FilterQuestion::Kernel) {
      EXPECT_EQ(TakeGrid(process, GridOfType(kBlur)), GridProblem::None);
    }
    item.run(process, {source, working, random}, {{0, 256, 3}, Rgb(255, 0, 0), {0, false}});
    told += std::string(item.item) + (item.ending == FilterEnding::Foreground ? " F " : " B ");
    told += Shown(source).substr(0, Shown(source).find(' ')) + "; ";
  }
  EXPECT_EQ(told,
            "customit F 100; greyit F 103; sharpenmoreit F 100; sharptenit F 100; unsharpen F 100; lightenit "
            "B 120; "
            "darkenit B 94; negatory B 155; blackwhite B 103; colorizeit B 0/0/200; emobossit F 227; "
            "Softenit F 100; "
            "SoftenMoreit F 100; blur2 F 100; blurmore F 100; maxi F 100; minimun F 100; medianit F 100; "
            "noisie F 100; "
            "colnoise F 100; ");
}

TEST(Filters, GridsBecomeTheSmallestKernel) {
  cImageProcessDIB process;
  StoredFilter grid = EmptyGrid();
  EXPECT_EQ(TakeGrid(process, grid), GridProblem::TooSmall);
  grid.values[24] = 0;
  EXPECT_EQ(TakeGrid(process, grid), GridProblem::Black);
  grid.values[25] = 4;   // right of the middle: the pixel above
  grid.values[38] = -2;  // two below it: two pixels to the right
  grid.weight = -3;
  EXPECT_EQ(TakeGrid(process, grid), GridProblem::None);
  EXPECT_EQ(process.FilterArraySize(), 5);
  EXPECT_EQ(process.FilterValue(0, 1), 4);
  EXPECT_EQ(process.FilterValue(2, 0), -2);
  EXPECT_EQ(process.FilterWeight(), -3);
  const StoredFilter soft = GridOfType(kSoftenMore);
  EXPECT_EQ(soft.weight, 44);
  EXPECT_EQ(soft.values[8], 1);
  EXPECT_EQ(soft.values[24], 12);
}

TEST(Filters, TellOfEveryColumnInOrder) {
  cImageProcessDIB process;
  std::string told;
  process.events.InitProgress = [&](int highest) { told += "to " + std::to_string(highest) + ":"; };
  process.events.Progress = [&](int position) { told += " " + std::to_string(position); };
  process.events.Complete = [&](double milliseconds) { told += milliseconds >= 0 ? " done" : ""; };
  cDIBSection source = Noise(7, 6), working;
  process.FilterType(kBlurMore);
  process.ProcessImage(source, working);
  EXPECT_EQ(told, "to 12: 6 9 12 done");
}

// The errors told literally, column by column.
void PlainBlackAndWhite(cDIBSection& source, cDIBSection& working) {
  const int end = (source.Width() - 1) * 3;
  const auto pass = [&](int x, int y, int error) {
    const int value = Bounded(source.Row(y)[x] + error);
    std::fill_n(source.Row(y) + x, 3, static_cast<std::uint8_t>(value));
  };
  for (int x = 0; x <= end; x += 3) {
    for (int y = 0; y < source.Height(); ++y) {
      const int v = source.Row(y)[x];
      std::fill_n(working.Row(y) + x, 3, static_cast<std::uint8_t>(v > 128 ? 255 : 0));
      const int error = v > 128 ? 127 - v : v > 16 ? v : 0;
      if (x < end - 3) pass(x + 3, y, error * 7 / 16);
      if (y >= source.Height() - 1) continue;
      const int weights[] = {3, 5, 1};
      for (int k = 0; k < 3; ++k) {
        const int at = x + 3 * (k - 1);
        if (at >= 1 && at < end) pass(at, y + 1, error * weights[k] / 16);
      }
    }
  }
}

TEST(Filters, BlackAndWhiteEqualsThePlainWalk) {
  for (const int width : {1, 2, 3, 20}) {
    cDIBSection source = Noise(width, 17), plain = source, working = source, plainWorking = source;
    const ValueRange range{40, 200, -5};
    BlackAndWhite(source, working, range);
    GrayScale(plain, range);
    PlainBlackAndWhite(plain, plainWorking);
    EXPECT_EQ(Shown(source), Shown(plain));
    EXPECT_EQ(Shown(working), Shown(plainWorking));
  }
}

TEST(Filters, LightenAndColouriseEqualTheConversion) {
  cDIBSection source = Noise(131, 40), lighter = source, coloured = source;
  for (int x = 0; x < 131; ++x) {  // grays, and two equal channels
    std::fill_n(source.Row(0) + 3 * x, 3, static_cast<std::uint8_t>(2 * x % 256));
    source.Row(1)[3 * x] = source.Row(1)[3 * x + 1 + x % 2];
    source.Row(2)[3 * x + 1] = source.Row(2)[3 * x + 2];
  }
  lighter = coloured = source;
  Lighten(lighter, 20);
  Colourise(coloured, 3.25F, 0.5F);
  for (int y = 0; y < source.Height(); ++y) {
    for (int x = 0; x < source.Width(); ++x) {
      const Colour colour = source.PixelAt(x, y);
      Hls hls = RGBToHLS(Red(colour), Green(colour), Blue(colour));
      const RgbLevels tinted = HLSToRGB({3.25F, 0.5F, hls.luminance});
      hls.luminance = std::min(1.0F, (20.0F / 100 + 1) * hls.luminance);
      const RgbLevels light = HLSToRGB(hls);
      ASSERT_EQ(lighter.PixelAt(x, y), Rgb(light.red, light.green, light.blue)) << x << " " << y;
      ASSERT_EQ(coloured.PixelAt(x, y), Rgb(tinted.red, tinted.green, tinted.blue)) << x << " " << y;
    }
  }
}

TEST(Filters, HlsByHand) {
  const auto told = [](int r, int g, int b) {
    const Hls c = RGBToHLS(r, g, b);
    return std::to_string(c.hue).substr(0, 5) + " " + std::to_string(c.saturation).substr(0, 4);
  };
  EXPECT_EQ(told(255, 0, 0), "0.000 1.00");
  EXPECT_EQ(told(255, 0, 51), "-0.20 1.00");
  EXPECT_EQ(told(0, 255, 51), "2.200 1.00");
  EXPECT_EQ(told(102, 51, 153), "4.500 0.50");
  EXPECT_EQ(told(7, 7, 7), "0.000 0.00");
  for (int i = 0; i < 256 * 8; ++i) {
    const int r = i * 37 % 256, g = i * 91 / 3 % 256, b = i % 256;
    const RgbLevels back = HLSToRGB(RGBToHLS(r, g, b));
    EXPECT_EQ(Rgb(back.red, back.green, back.blue), Rgb(r, g, b));
  }
}

TEST(Filters, SumsAndOverlaysByHand) {
  const cDIBSection first = Grays(2, {10, 200}), second = Grays(2, {100, 250});
  const auto sum = [&](ImageTerm a, ImageTerm b, bool half = false) {
    cDIBSection result = second;
    (half ? AddImages2 : AddImages)(first, result, a, b, {});
    return Shown(result);
  };
  EXPECT_EQ(sum({-1, -255, -255, -255}, {}), "245 55");
  EXPECT_EQ(sum({1, 1, 2, 3}, {-1, -4, 0, 0}), "0 0");
  EXPECT_EQ(sum({1, 0, 0, 0}, {1, 0, 0, 1}), "111/110/110 255");
  EXPECT_EQ(sum({1, 0, 0, 0}, {1, 0, 0, 1}, true), "55 225");
  EXPECT_EQ(sum({1000, -9, 0, 0}, {-90, 0, 0, 0}), "255/255/0 255");
  cDIBSection target;
  const cDIBSection light = Grays(2, {50, 90}), dark = Grays(2, {60, 80});
  AddLightest(target, light, dark);
  EXPECT_EQ(Shown(target), "60 90");
  AddDarkest(target, light, dark);
  EXPECT_EQ(Shown(target), "50 80");
  EXPECT_EQ(Shown(light), "50 90");
  cDIBSection fading = Grays(2, {255, 17});
  Fade(fading, 240);
  EXPECT_EQ(Shown(fading), "240 16");
}

TEST(Filters, GrayReachesItsRange) {
  cDIBSection surface = Noise(1, 1);
  const std::uint8_t bytes[] = {10, 20, 31};  // 61 / 3 = 20.3
  std::copy_n(bytes, 3, surface.Row(0));
  cImageProcessDIB process;
  process.GrayScale(surface, {30, 256, 9});
  EXPECT_EQ(Shown(surface), "10/20/31");
  process.GrayScale2(surface, {20, 20, 99});
  EXPECT_EQ(Shown(surface), "20");
  process.GrayScale(surface, {0, 256, -30});
  EXPECT_EQ(Shown(surface), "0");
}

TEST(Filters, NoiseFollowsItsSettings) {
  RandomSeries random, plain;
  cDIBSection gray = Grays(2, {100, 3, 250, 0}), colour = gray;
  AddNoise(gray, {100, false}, random);
  const auto draw = [&](int level) {
    return Bounded(static_cast<long long>(std::nearbyint(plain.Next() * 128 + level - 64)));
  };
  std::string expected[4];  // drawn column by column, shown row by row
  for (const int at : {0, 2, 1, 3}) {
    const int level = std::vector<int>{100, 3, 250, 0}[static_cast<std::size_t>(at)];
    const int a = draw(level), b = draw(level), c = draw(level);
    expected[at] = std::to_string((a + b + c) / 3);
  }
  EXPECT_EQ(Shown(gray), expected[0] + " " + expected[1] + " | " + expected[2] + " " + expected[3]);
  AddNoise2(colour, {0, true}, random);  // no amplitude
  EXPECT_EQ(Shown(colour), "100 3 | 250 0");
  AddNoise2(colour, {100, true}, random);  // no draw of 0..100 lies above 100
  EXPECT_EQ(Shown(colour), "100 3 | 250 0");
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { AddNoise(colour, {20000000, false}, random); }));
}

}  // namespace
}  // namespace pelorium
