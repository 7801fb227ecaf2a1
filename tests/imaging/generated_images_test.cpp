// Clouds, noise, gradients and gray levels: small ones by hand, large ones against the plain procedure.
#include <cmath>

#include "base/numbers.h"
#include "imaging/corner_plasma.h"
#include "imaging/gradient.h"
#include "imaging/gray_levels.h"
#include "imaging/perlin_noise.h"
#include "imaging/picture_text.h"
#include "imaging/tiling_plasma.h"
#include "support/harness.h"

namespace pelorium {
namespace {

// ------------------------------------------------------------------------------------------------ tiling
// plasma

TEST(TilingPlasma, FitsOntoItselfAndStaysInItsRange) {
  for (const auto& [width, height] : {std::pair(1, 1), {2, 1}, {1, 7}, {5, 9}, {31, 17}}) {
    Picture picture = Empty(width, height);
    RandomSeries random;
    PaintTilingPlasma(picture, 200, random);
    const int right = width / 2 * 2, low = height / 2 * 2;  // the last ones, of odd sides inside
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const int value = picture.PixelAt(x, y);
        EXPECT_TRUE(value >= 1 && value <= 256) << value;
        if (right < width) {
          EXPECT_EQ(picture.PixelAt(0, y), picture.PixelAt(right, y));
        }
        if (low < height) {
          EXPECT_EQ(picture.PixelAt(x, 0), picture.PixelAt(x, low));
        }
      }
    }
    EXPECT_EQ(picture.backColour, 0U);
  }
}

// Four corners (0,0), (1,0), (0,1), (1,1): r * 255 + 1. Rectangles of side 1 hold no others. Then the copies.
TEST(TilingPlasma, CornersOfTheHalfGoRoundTheWhole) {
  RandomSeries random, plain;
  const auto corner = [&] { return static_cast<int>(RoundHalfEven(plain.Next() * 255 + 1)); };
  const int a = corner(), b = corner(), c = corner(), d = corner();
  Picture picture = Empty(3, 3);
  PaintTilingPlasma(picture, 0, random);
  std::string expected;
  for (const int value : {a, b, a, c, d, c, a, b, a}) expected += std::to_string(value) + "/0/0 ";
  std::string found;
  for (const std::uint32_t pixel : picture.Pixels()) found += ColourText(pixel) + " ";
  EXPECT_EQ(found, expected);
}

// Half size 2: the midpoints of the first quarter in their order, at depth 1.
TEST(TilingPlasma, MidpointsMoveByTheLevelOverTheDepth) {
  RandomSeries random, plain;
  int corner[4];
  for (int& value : corner) value = static_cast<int>(RoundHalfEven(plain.Next() * 255 + 1));
  const auto moved = [&](int first, int second) {
    int by = static_cast<int>(RoundHalfEven(plain.Next() * 50));
    if (std::floor(plain.Next() + plain.Next()) == 0) by = -by;
    const int value = (first + second + 1) / 2 + by;
    return value < 1 ? 1 : value > 250 ? 250 : value;
  };
  const int top = moved(corner[0], corner[1]), right = moved(corner[1], corner[3]);
  const int bottom = moved(corner[2], corner[3]), left = moved(corner[0], corner[2]);
  Picture picture = Empty(5, 5);
  PaintTilingPlasma(picture, 50, random);
  EXPECT_EQ(picture.PixelAt(1, 0), top);
  EXPECT_EQ(picture.PixelAt(2, 1), right);
  EXPECT_EQ(picture.PixelAt(1, 2), bottom);
  EXPECT_EQ(picture.PixelAt(0, 1), left);
  EXPECT_EQ(picture.PixelAt(1, 1), (top + right + bottom + left + 2) / 4);
}

// ------------------------------------------------------------------------------------------------ corner
// plasma

CornerPlasma Even(int width, int height) {
  CornerPlasma plasma;
  plasma.width = width;
  plasma.height = height;
  plasma.corners = {{{0, 0, 0}, {10, 20, 0}, {30, 0, 1}, {40, 20, 2}}};
  for (auto& channel : plasma.channels) channel.isMoved = false;
  return plasma;
}

std::string Painted(const CornerPlasma& plasma, int width, int height, RandomSeries random = {}) {
  Picture picture = Empty(width, height);
  PaintCornerPlasma(picture, plasma, random);
  return PictureText(picture);
}

TEST(CornerPlasma, BlendsAndMirrors) {
  CornerPlasma plasma = Even(2, 2);
  // Mean of 0 and 1: 0; of 1 and 2: 2, half to even; of all four blues 0 0 1 2: 0.75.
  EXPECT_EQ(Painted(plasma, 4, 3),
            "0 5/10/0 10/20/0 . | 15/0/0 20/10/1 25/20/1 . | 30/0/1 35/10/2 40/20/2 .");
  EXPECT_EQ(Painted(plasma, 2, 3), "0 5/10/0 | 15/0/0 20/10/1 | 30/0/1 35/10/2");  // its edge lies outside
  plasma.tiles = true;
  plasma.width = 3;
  EXPECT_EQ(Painted(plasma, 4, 3),
            "0 10/20/0 10/20/0 0 | 30/0/1 40/20/2 40/20/2 30/0/1 | 0 10/20/0 10/20/0 0");
  plasma = Even(2, 2);
  plasma.channels[0].least = 12;
  plasma.channels[1].most = 9;
  plasma.channels[2] = {false, 300, 400};  // the corners are not held
  EXPECT_EQ(Painted(plasma, 3, 3),
            "0 12/9/255 10/20/0 | 15/0/255 20/9/255 25/9/255 | 30/0/1 35/9/255 40/20/2");
}

// The only place of a rectangle 2 by 0 that is not a corner: 0.5 * 2 = 1 times the factors.
TEST(CornerPlasma, MovesByOneDrawOrByThree) {
  CornerPlasma plasma = Even(2, 0);
  plasma.corners = {{{100, 100, 100}, {100, 100, 100}, {100, 100, 100}, {100, 100, 100}}};
  plasma.roughness = 100;
  plasma.scale = 0.5;
  for (auto& channel : plasma.channels) channel.isMoved = true;
  RandomSeries plain;
  const auto move = [&] {
    const int amount = static_cast<int>(RoundHalfEven(plain.Next() * 1 * 100 * 0.5));
    return std::floor(plain.Next() + plain.Next()) == 0 ? -amount : amount;
  };
  const int one = move(), two = move(), three = move();
  const auto text = [](int r, int g, int b) {
    return "100 " + ColourText(Rgb(100 + r, 100 + g, 100 + b)) + " 100";
  };
  EXPECT_EQ(Painted(plasma, 3, 1), text(one, one, one));
  plasma.movesAlike = false;
  EXPECT_EQ(Painted(plasma, 3, 1), text(one, two, three));
  plasma.channels[1].isMoved = false;
  EXPECT_EQ(Painted(plasma, 3, 1), text(one, 0, two));
}

// ------------------------------------------------------------------------------------------------ noise

TEST(PerlinNoise, KeepsItsTableAndItsGradients) {
  const cPerlin3D noise;
  std::array<int, 256> times{};
  for (int i = 0; i < 256; ++i) {
    ++times[static_cast<std::size_t>(noise.p[static_cast<std::size_t>(i)])];
    EXPECT_EQ(noise.p[static_cast<std::size_t>(i)], noise.p[static_cast<std::size_t>(i) + 256]);
  }
  for (std::size_t value = 0; value < 256; ++value) {
    EXPECT_EQ(times[value], value == 91 ? 2 : value == 151 ? 0 : 1) << value;
  }
  std::string grads;
  for (int hash = 0; hash < 17; ++hash) grads += GeneralForm(cPerlin3D::grad(hash, 100, 10, 1)) + " ";
  EXPECT_EQ(grads, "110 -90 90 -110 101 -99 99 -101 11 -9 9 -11 200 0 9 -11 110 ");
  EXPECT_EQ(noise.Noise(3, -4, 5), 0);
  EXPECT_EQ(noise.Noise(0, 300.25, 0.5), noise.Noise(256, 300.25 - 512, 256.5));
  EXPECT_THROW(noise.Noise(1e12, 0, 0), Fault);
}

// The procedure as it reads.
cDIBSection RenderPlainly(int width, int height, const PerlinSettings& s, RandomSeries& random) {
  cDIBSection surface;
  surface.Create(width, height);
  const cPerlin3D noise;
  const double stepX = 1 / (width / (2 * s.extent)), stepY = 1 / (height / (2 * s.extent));
  double x = -s.extent;
  for (int column = 0; column < width; ++column, x += stepX) {
    double y = -s.extent;
    for (int row = 0; row < height; ++row, y += stepY) {
      double sum = noise.Noise(x, y, 0.01);
      if (s.useAbsolute) sum = std::fabs(sum);
      double xc = x, yc = y, zc = 0.03;
      int freq = 1;
      if (s.octaveLimit > 1) {
        do {
          freq *= 2;
          yc *= 2, zc *= 2;
          const double part = noise.Noise(2 * xc, yc, zc) / freq;
          xc = s.streaks ? xc + freq : 2 * xc;
          sum += s.useAbsolute ? std::fabs(part) : part;
        } while (freq < s.octaveLimit);
      }
      double value;
      if (s.useAbsolute) {
        value = (sum > 1 ? 1 : sum) * 255;
      } else {
        value = sum * s.level + s.level + std::floor(random.Next() * s.noiseLevel);
        value = value > 255 ? 255 : value < 0 ? 0 : value;
      }
      std::fill_n(surface.Row(row) + column * 3, 3, static_cast<std::uint8_t>(RoundHalfEven(value)));
    }
  }
  return surface;
}

TEST(PerlinNoise, QuickWalkGivesTheBytesOfThePlainOne) {
  struct Case {
    int width, height;
    PerlinSettings settings;
  };
  const Case cases[] = {
      {1, 1, {}},
      {2, 3, {1, 32}},
      {97, 64, {1, 1}},
      {97, 64, {1, 32}},
      {64, 97, {16, 32, true}},
      {50, 60, {128, 32}},
      {97, 64, {3, 8, false, true, 250, 40}},
      {40, 40, {5, 32, true, true, 10, 10}},
      {40, 40, {4, 2, false, false, 10, -30}},
  };
  for (const Case& c : cases) {
    RandomSeries quickly, plainly;
    const cDIBSection expected = RenderPlainly(c.width, c.height, c.settings, plainly);
    cDIBSection surface;
    surface.Create(c.width, c.height);
    int columns = 0;
    RenderPerlin(surface, c.settings, quickly, [&](int column) { EXPECT_EQ(column, columns++); });
    EXPECT_EQ(columns, c.width);
    EXPECT_EQ(quickly.Next(), plainly.Next());
    int different = 0;
    for (int y = 0; y < c.height; ++y) {
      for (int x = 0; x < c.width; ++x) different += surface.PixelAt(x, y) != expected.PixelAt(x, y);
    }
    EXPECT_EQ(different, 0) << c.width << " " << c.settings.extent << " " << c.settings.octaveLimit;
  }
}

// ------------------------------------------------------------------------------------------------ gradients

TEST(Gradients, StopOneStepShort) {
  Picture picture = Empty(4, 2);
  const Gradient gradient{Rgb(0, 255, 10), Rgb(255, 0, 10)};
  FillAcross(picture, gradient);
  EXPECT_EQ(PictureText(picture),
            "0/255/10 64/191/10 128/128/10 191/64/10 | "
            "0/255/10 64/191/10 128/128/10 191/64/10");
  FillDown(picture, gradient);
  EXPECT_EQ(PictureText(picture),
            "0/255/10 0/255/10 0/255/10 0/255/10 | "
            "128/128/10 128/128/10 128/128/10 128/128/10");
  EXPECT_EQ(picture.foreColour, Rgb(128, 128, 10));
}

// ------------------------------------------------------------------------------------------------ gray
// levels

TEST(GrayLevels, InvertReadsThePictureBefore) {
  Picture picture = GrayPicture(8, std::vector<int>(64, 55));
  picture.Edit().pixels[8 + 1] = Rgb(10, 11, 12);  // (1, 1)
  picture.Edit().pixels[8 + 5] = Rgb(100, 100, 100);
  InvertGrays(picture, 4);
  EXPECT_EQ(picture.drawWidth, 6);
  EXPECT_EQ(picture.PixelAt(1, 1), static_cast<int>(Rgb(244, 244, 244)));
  EXPECT_EQ(picture.PixelAt(5, 1), static_cast<int>(Rgb(155, 155, 155)));
  EXPECT_EQ(picture.PixelAt(5, 5), static_cast<int>(Rgb(200, 200, 200)));
}

TEST(GrayLevels, BlursSeeWhatTheyWrote) {
  // Fine, at (1, 1): (9 * 20 + 70) / 9 = 27; then at (2, 1): 20 * 3 + 27 + 4 * 20 = 187 / 9; down to (3, 3).
  Picture picture = GrayPicture(4, {90, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20});
  int rows = 0;
  BlurGrays(picture, {1, 1, 1, true}, [&](int) { ++rows; });
  EXPECT_EQ(PictureText(picture), "90 20 20 20 | 20 27 20 20 | 20 20 20 20 | 20 20 20 20");
  EXPECT_EQ(rows, 4);
  // Wide: (1, 1) has neighbours inside only at (0, 0), (0, 2), (0, 3), (2, 0), (2, 2), (2, 3), (3, 0), (3,
  // 2), (3, 3): 20 * 9 + 90 = 270 / 10.
  picture = GrayPicture(4, {90, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20});
  BlurGrays(picture, {1, 8, 2, false});
  EXPECT_EQ(PictureText(picture), "27 27 20 20 | 27 27 20 20 | 20 20 20 20 | 20 20 20 20");
}

TEST(GrayLevels, BrushBlendsFiltersAndHoldsItsGray) {
  RandomSeries random;
  GrayBrush brush;
  brush.size = 1;
  Picture picture = GrayPicture(3, {10, 10, 10, 10, 10, 10, 10, 10, 10});
  const auto paint = [&](double x, double y, bool blends = false, bool sprays = false) {
    PaintGrays(picture, brush, {x, y, blends, sprays}, random);
    return PictureText(picture);
  };
  EXPECT_EQ(paint(1, 0), "10 128 10 | 10 10 10 | 10 10 10");
  // Neighbours of (0, 0) inside: (1, 1), (1, 2), (2, 1), (2, 2): (128 + 10) / 2.
  EXPECT_EQ(paint(0, 0, true), "69 128 10 | 10 10 10 | 10 10 10");
  brush.brightness = 50;
  brush.addGray = 10;
  EXPECT_EQ(paint(2, 0), "69 128 74 | 10 10 10 | 10 10 10");
  brush.filterMax = 73;
  EXPECT_EQ(paint(2, 0), "69 128 74 | 10 10 10 | 10 10 10");
  brush.filterMax = 255;
  brush.addGray = 255;
  brush.addWidth = 2;
  EXPECT_EQ(paint(-1, 2), "69 128 74 | 255 10 10 | 255 10 10");
  brush.filterMin = 11;
  brush.randomPoints = 5000;
  brush.size = 8;
  brush.dotSize = 1, brush.addWidth = 0;
  EXPECT_EQ(paint(1, 1, false, true), "255 255 255 | 255 10 10 | 255 10 10");
}

TEST(GrayLevels, MarksMoveAtRandom) {
  RandomSeries random, plain;
  GrayBrush brush;
  brush.size = 1;
  brush.randomX = 4;
  brush.randomY = 2;
  Picture picture = Empty(9, 5);
  PaintGrays(picture, brush, {4, 2}, random);
  const int x = static_cast<int>(std::floor((2 * plain.Next() - 1) * 4));
  const int y = static_cast<int>(std::floor((2 * plain.Next() - 1) * 2));
  EXPECT_EQ(picture.PixelAt(4 + x, 2 + y), static_cast<int>(Rgb(128, 128, 128)));
}

TEST(GrayLevels, ProfilesAndSpray) {
  ModelStore model;
  model.Profile(3).count = 2;
  model.ProfilePts(1, 3).X = 3;
  model.ProfilePts(1, 3).Y = 1;
  model.ProfilePts(1, 3).Z = 9;
  GrayBrush brush;
  brush.size = 1;
  Picture picture = Empty(4, 2);
  PaintProfileInGray(picture, brush, {}, model, 3);
  EXPECT_EQ(PictureText(picture), "128 128 . . | . . 128 .");
  RandomSeries random;  // .8833, .4315
  picture = Empty(968, 670);
  SprayGrays(picture, 7, 1, 1, random);
  EXPECT_EQ(picture.PixelAt(855, 289), static_cast<int>(Rgb(7, 7, 7)));
}

}  // namespace
}  // namespace pelorium
