// The pixel rule, lines, dots and the ground.
#include "graphics/picture.h"

#include <array>
#include <limits>

#include "support/harness.h"

namespace pelorium {
namespace {

constexpr Colour kInk = Rgb(255, 0, 0);
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

using Rows = std::vector<std::string>;

// The picture as rows of "#" (ink) and "." (ground).
Rows Shown(const Picture& picture) {
  Rows rows;
  for (int y = 0; y < picture.PixelHeight(); ++y) {
    std::string row;
    for (int x = 0; x < picture.PixelWidth(); ++x) {
      const auto colour = static_cast<Colour>(picture.PixelAt(x, y));
      row += colour == kInk ? '#' : colour == picture.backColour ? '.' : '?';
    }
    rows.push_back(row);
  }
  return rows;
}

int InkedPixels(const Picture& picture) {
  int count = 0;
  for (const auto pixel : picture.Pixels()) count += pixel == kInk;
  return count;
}

// 492 / 964 * 964 falls short of 492 when the division comes first.
TEST(Picture, PixelRuleMultipliesFirst) {
  Picture picture(964, 671);
  picture.SetScale(964, 671);
  for (int i = 0; i < 671; ++i) {
    const Pixel at = picture.ToPixel(static_cast<float>(i), static_cast<float>(i));
    ASSERT_EQ(at.x, i);
    ASSERT_EQ(at.y, i);
  }
  EXPECT_EQ(picture.ToPixel(492, 0).x, 492);
}

TEST(Picture, ScaleMayBeNegative) {
  Picture picture(100, 60);
  picture.SetScale(15, -15);
  const Pixel at = picture.ToPixel(7.5F, -3.F);
  EXPECT_EQ(at.x, 50);
  EXPECT_EQ(at.y, 12);
  EXPECT_EQ(picture.ToPixel(0, 0).y, 0);
  EXPECT_EQ(picture.ToPixel(-0.01F, 0.01F).x, -1);
  EXPECT_EQ(picture.ToPixel(-0.01F, 0.01F).y, -1);
  EXPECT_EQ(picture.ToUserX(50), 7.5F);
  EXPECT_EQ(picture.ToUserY(12), -3.F);
  EXPECT_TRUE(Raises(FaultKind::DivisionByZero, [&] { picture.SetScale(0, 5); }));
  EXPECT_TRUE(Raises(FaultKind::DivisionByZero, [&] { picture.SetScale(5, 0); }));
  EXPECT_EQ(picture.ScaleWidth(), 15);
  EXPECT_EQ(picture.ScaleHeight(), -15);
}

TEST(Picture, ALineHoldsItsStartAndNotItsEnd) {
  Picture picture(6, 3);
  picture.Line(0, 0, 5, 2, kInk);
  EXPECT_EQ(Shown(picture), (Rows{"##....", "..##..", "....#."}));
  picture.Clear();
  picture.Line(5, 2, 0, 0, kInk);
  EXPECT_EQ(Shown(picture), (Rows{".#....", "..##..", "....##"}));
  picture.Clear();
  picture.Line(2, 1, 2, 1, kInk);
  EXPECT_EQ(InkedPixels(picture), 0);
}

// One slope in all eight directions: the offsets are those of the first picture above, mirrored and swapped.
TEST(Picture, LinesInAllOctants) {
  constexpr std::array<std::array<int, 2>, 5> kOffsets = {{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 2}}};
  for (int octant = 0; octant < 8; ++octant) {
    const int signX = octant & 1 ? -1 : 1, signY = octant & 2 ? -1 : 1;
    const bool swapped = octant & 4;
    Picture picture(17, 17);
    const int dx = signX * (swapped ? 2 : 5), dy = signY * (swapped ? 5 : 2);
    picture.Line(8, 8, static_cast<float>(8 + dx), static_cast<float>(8 + dy), kInk);
    for (const auto& [along, across] : kOffsets) {
      const int x = 8 + signX * (swapped ? across : along), y = 8 + signY * (swapped ? along : across);
      EXPECT_EQ(picture.PixelAt(x, y), static_cast<int>(kInk)) << octant << ": " << x << ", " << y;
    }
    EXPECT_EQ(InkedPixels(picture), 5) << octant;
  }
}

// A small picture shows of a long line what a large one shows there.
TEST(Picture, ClippedLinesAreTheUnclippedOnes) {
  constexpr int kLeft = 180, kTop = 185;
  constexpr float kLines[][4] = {{0, 0, 399, 397},   {399, 3, 1, 390},   {10, 200, 390, 201},
                                 {205, 399, 204, 0}, {0, 150, 399, 230}, {190, 190, 0, 399},
                                 {0, 203, 200, 186}, {181, 0, 219, 399}, {399, 214, 178, 186},
                                 {179, 0, 179, 399}, {0, 184, 399, 184}, {220, 215, 399, 399}};
  for (const int width : {1, 2, 3, 6}) {
    for (const auto& [x0, y0, x1, y1] : kLines) {
      Picture large(400, 400), small(40, 30);
      large.drawWidth = small.drawWidth = width;
      large.Line(x0, y0, x1, y1, kInk);
      small.Line(x0 - kLeft, y0 - kTop, x1 - kLeft, y1 - kTop, kInk);
      for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
          ASSERT_EQ(small.PixelAt(x, y), large.PixelAt(x + kLeft, y + kTop))
              << "width " << width << " from " << x0 << ", " << y0 << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST(Picture, AWideLineSetsItsEndToo) {
  Picture picture(40, 9);
  picture.drawWidth = 5;
  picture.Line(10, 4, 25, 4, kInk);
  for (const auto& [x, isInked] : {std::pair{7, false}, {8, true}, {27, true}, {28, false}}) {
    EXPECT_EQ(picture.PixelAt(x, 4) == static_cast<int>(kInk), isInked) << x;
  }
  picture.Clear();
  picture.Line(10, 4, 10, 4, kInk);  // no way to go: a dot
  EXPECT_EQ(InkedPixels(picture), 21);
}

TEST(Picture, CoordinatesBeyondAllBounds) {
  Picture picture(8, 4);
  picture.Line(-1e30F, 1, 1e30F, 1, kInk);
  EXPECT_EQ(Shown(picture), (Rows{"........", "########", "........", "........"}));
  picture.Clear();
  picture.Dot(kNaN, 1, kInk);
  picture.Dot(1e30F, -1e30F, kInk);
  EXPECT_EQ(InkedPixels(picture), 0);
  picture.Line(3, 2, kNaN, kNaN, kInk);
  EXPECT_EQ(Shown(picture), (Rows{".#......", "..#.....", "...#....", "........"}));
  picture.drawWidth = 1 << 20;  // beyond what a stored call holds: still a disc that covers the picture
  picture.Dot(0, 0, kInk);
  EXPECT_EQ(InkedPixels(picture), 32);
}

// A pixel belongs to the disc when its centre lies within width / 2 of the disc's: that of the pixel for odd
// widths, its top left corner for even ones.
TEST(Picture, DotsOfAllWidths) {
  for (int width = 1; width <= 40; ++width) {
    Picture picture(60, 60);
    picture.drawWidth = width;
    picture.Dot(30, 30, kInk);
    const int centre = width % 2 == 0 ? 60 : 61;  // in half pixels
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) {
        const int dx = 2 * x + 1 - centre, dy = 2 * y + 1 - centre;
        ASSERT_EQ(picture.PixelAt(x, y) == static_cast<int>(kInk), dx * dx + dy * dy <= width * width)
            << width << " at " << x << ", " << y;
      }
    }
  }
}

TEST(Picture, DotsAtTheBorderAreCut) {
  Picture picture(4, 3);
  picture.drawWidth = 3;
  picture.Dot(0, 0, kInk);
  picture.Dot(3, 2, kInk);
  EXPECT_EQ(Shown(picture), (Rows{"##..", "####", "..##"}));
}

TEST(Picture, ClearDropsEarlierCallsAndKeepsLaterOnes) {
  Picture picture(3, 1);
  const auto start = picture.Revision();
  picture.Line(0, 0, 3, 0, kInk);
  picture.Clear();
  picture.Dot(1, 0, kInk);
  EXPECT_EQ(Shown(picture), Rows{".#."});
  EXPECT_GT(picture.Revision(), start);
  EXPECT_EQ(picture.PixelAt(1, 0), 255);
  EXPECT_EQ(picture.PixelAt(0, 0), 0x404040);
  for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 1}}) EXPECT_EQ(picture.PixelAt(x, y), -1);
}

TEST(Picture, PensAreTakenWhenTheCallComes) {
  Picture picture(3, 1);
  picture.foreColour = kInk;
  picture.Dot(0, 0);
  picture.foreColour = Rgb(0, 255, 0);
  picture.SetScale(30, 1);
  picture.Dot(20, 0);
  EXPECT_EQ(picture.Pixels(), (std::vector<std::uint32_t>{0x0000FF, 0x404040, 0x00FF00}));
}

TEST(Picture, ResizeGivesGroundAndKeepsTheScale) {
  Picture picture(4, 4);
  picture.SetScale(15, -15);
  picture.Line(0, 0, 15, 0, kInk);
  picture.Resize(2, 3);
  EXPECT_EQ(Shown(picture), (Rows{"..", "..", ".."}));
  EXPECT_EQ(picture.ScaleHeight(), -15);
  picture.Resize(0, 1 << 20);
  EXPECT_EQ(picture.PixelWidth(), 1);
  EXPECT_EQ(picture.PixelHeight(), 32767);
}

TEST(Picture, SetPixelsCopiesAsManyAsItHolds) {
  Picture picture(2, 1);
  picture.SetPixels({1});
  EXPECT_EQ(picture.Pixels(), (std::vector<std::uint32_t>{1, 0x404040}));
  picture.SetPixels({2, 3, 4});
  picture.Dot(0, 0, kInk);
  EXPECT_EQ(picture.Pixels(), (std::vector<std::uint32_t>{kInk, 3}));
}

TEST(Picture, TextStandsUprightAtItsPixelAndIsCutAtTheEdges) {
  Picture picture(11, 9);
  picture.SetScale(1, -1);
  picture.drawWidth = 4;
  picture.Text({1, 0}, "gé", kInk);  // the second letter is unknown and two bytes long
  EXPECT_EQ(Shown(picture), (Rows{
                                "......."
                                "####",
                                "......."
                                "#...",
                                ".."
                                "####."
                                "#...",
                                ".#...#."
                                "#...",
                                ".#...#."
                                "#...",
                                ".#...#."
                                "#...",
                                ".."
                                "####."
                                "####",
                                ".....#.....",
                                ".."
                                "###......",
                            }));
  EXPECT_EQ(TextWidth("gé", TextSize::Small), 12);
}

// A slanted stroke at double size has its steps rounded.
TEST(Picture, LargeTextIsTwiceAsLarge) {
  Picture picture(10, 14);
  picture.Text({0, 0}, "/", kInk, TextSize::Large);
  EXPECT_EQ(Shown(picture)[3], ".......###");
  EXPECT_EQ(Shown(picture)[4], "......###.");
  EXPECT_EQ(Shown(picture)[13], "##........");
}

}  // namespace
}  // namespace pelorium
