// Strokes, marks and shapes on pictures of a few pixels.
#include "imaging/brushes.h"

#include <cmath>

#include "imaging/canvas.h"
#include "imaging/palette.h"
#include "imaging/picture_marks.h"
#include "imaging/picture_text.h"
#include "support/harness.h"

namespace pelorium {
namespace {

class Brushes : public ::testing::Test {
 protected:
  Brushes() {
    for (Picture* picture : {&under, &other}) picture->foreColour = Rgb(1, 1, 1);
  }
  std::string Move(double x, double y, bool drawing = true, bool left = true) {
    MoveBrush({under, other}, settings, {x, y, drawing, left}, random, model, 0);
    return PictureText(under);
  }

  Picture under = Empty(3, 3), other = GrayPicture(2, {10, 20, 30, 40});
  BrushSettings settings;
  RandomSeries random;
  ModelStore model;
};

TEST_F(Brushes, PointsNeedTheLeftButtonAndAPress) {
  EXPECT_EQ(Move(1, 1, false), ". . . | . . . | . . .");
  EXPECT_EQ(Move(1, 1, true, false), ". . . | . . . | . . .");
  EXPECT_EQ(Move(1.5, 0.5), ". . 1 | . . . | . . .");  // half to even
  settings.circle = true;
  EXPECT_EQ(Move(1, 1), "1 1 1 | 1 . 1 | 1 1 1");
}

TEST_F(Brushes, SquaresStartAtThePointer) {
  settings.square = 1;
  settings.fillsBox = true;
  under.drawWidth = 5;
  settings.pointSize = 4;
  EXPECT_EQ(Move(1, 1, true, false), ". . . | . 1 1 | . 1 1");
  EXPECT_EQ(under.drawWidth, 4);
  EXPECT_EQ(other.drawWidth, 4);
  settings.fillsBox = false;
  settings.scrapes = true;
  EXPECT_EQ(Move(-1, 0, true, false), "10 . . | 30 1 1 | . 1 1");
  EXPECT_EQ(Move(1, 1, true, false), "10 . . | 30 40 255 | . 255 255");  // white where the other image ends
  EXPECT_EQ(under.foreColour, kWhite);
}

TEST_F(Brushes, BlurSeesItsOwnResults) {
  under = GrayPicture(3, {8, 16, 24, 32, 40, 48, 56, 64, 72});
  settings.blurs = true;
  settings.square = 0;
  settings.blurFactor = 0.5;
  EXPECT_EQ(Move(1, 1), "8 16 24 | 32 20 48 | 56 64 72");  // 320 / 8 / 2
  settings.square = 1;
  settings.blurFactor = 1;
  // Down the columns: 320 / 8; with three white 1013 / 8 and 1044 / 8; with five of them 1572 / 8.
  EXPECT_EQ(Move(1, 1), "8 16 24 | 32 40 130 | 56 127 196");
}

TEST_F(Brushes, PatchesDrawEvenWithoutAButton) {
  settings.patch = true;
  settings.patchSize = 4;
  settings.patchAmount = 1;
  RandomSeries plain;
  Picture expected = under;
  for (int i = 0; i < 4; ++i) plain.Next();
  Move(1, 1, false);
  for (int i = 0; i < 2; ++i) {
    const double x = 1 + 4 * plain.Next() - 2;
    PaintDot(expected, x, 1 + 4 * plain.Next() - 2);
  }
  EXPECT_EQ(Move(1, 1), PictureText(expected));
  EXPECT_EQ(random.Next(), plain.Next());
}

TEST_F(Brushes, RandomPensComeInTheirOrder) {
  settings.randomPen = settings.randomGray = settings.randomWidth = settings.randomColour = true;
  settings.pointSize = 9;
  RandomSeries plain;
  for (int i = 0; i < 4; ++i) plain.Next();
  const int width = static_cast<int>(9 * plain.Next()) + 1;
  const auto level = [&] { return static_cast<int>(plain.Next() * 255) + 1; };
  const int red = level(), green = level(), blue = level();
  Move(0, 0, false);
  EXPECT_EQ(under.foreColour, Rgb(red, green, blue));
  EXPECT_EQ(other.foreColour, Rgb(1, 1, 1));
  EXPECT_EQ(other.drawWidth, width);
}

TEST_F(Brushes, ProfilesTakeThePlaceOfStrokes) {
  const double places[][2] = {{0, 0}, {2, 0}, {2, 2}, {0, 2}};
  for (int i = 0; i < 4; ++i) {
    model.ProfilePts(i, 0).X = places[i][0];
    model.ProfilePts(i, 0).Z = places[i][1];
  }
  model.Profile(0).count = 3;
  settings.drawsProfile = settings.fillsBox = true;
  EXPECT_EQ(Move(0, 0), ". 1 1 | . . 1 | . . 1");  // two lines, each without its end
  Picture canyon = Empty(3, 3);
  canyon.foreColour = Rgb(1, 1, 1);
  model.ProfilePts(1, 0).Z = -2;
  for (int i = 2; i <= kMaxLayer; ++i) model.ProfilePts(i, 0) = model.ProfilePts(1, 0);
  DrawCanyon(canyon, model, 0, 0, 0);
  EXPECT_EQ(PictureText(canyon), "1 . . | . 1 . | . . .");
}

TEST_F(Brushes, GridAndFrame) {
  Picture picture = Empty(5, 5);
  picture.foreColour = Rgb(1, 1, 1);
  DrawGrid(picture, 4, 3);
  EXPECT_EQ(PictureText(picture), "1 1 1 1 1 | 1 . . . 1 | 1 . . . 1 | 1 1 1 1 1 | 1 . . . 1");
  picture = Empty(5, 5);
  DrawFrame(picture, 2, Rgb(3, 3, 3));
  EXPECT_EQ(PictureText(picture), ". 3 . . 3 | 3 3 3 3 3 | . 3 . . 3 | . 3 . . 3 | 3 3 3 3 3");
  EXPECT_EQ(picture.foreColour, Rgb(3, 3, 3));
}

TEST_F(Brushes, ScatteredMarksFollowTheSeries) {
  RandomSeries plain;
  const auto whole = [&](double amount) { return static_cast<int>(plain.Next() * amount); };
  Picture expected = under;
  settings.randomWidth = settings.randomGray = true;
  settings.pointSize = 2;
  RandomPoints(under, settings, 2, random);
  for (int i = 0; i < 3; ++i) {
    const int x = whole(3), y = whole(3);
    expected.drawWidth = whole(2) + 1;
    const int gray = whole(255) + 1;
    expected.foreColour = Rgb(gray, gray, gray);
    expected.DotAt({x, y});
  }
  EXPECT_EQ(PictureText(under), PictureText(expected));
  EXPECT_EQ(under.drawWidth, 2);
  under = Empty(3, 3);
  RandomScrape(other, under, settings, 50, random);  // only the pixel right below
  EXPECT_EQ(PictureText(under), ". . . | . 40 . | . . .");
  Picture thin = Empty(1, 3);
  RandomScrape(thin, under, settings, 50, random);
  EXPECT_EQ(under.PixelAt(1, 2), 0);  // outside reads as black
}

TEST(Canvas, CirclesByTheirRule) {
  for (const auto& [radius, width] : {std::pair{0, 4}, {1, 1}, {3, 1}, {4, 3}, {2, 6}, {7, 20}, {300, 9}}) {
    Picture picture = Empty(41, 37), expected = picture;
    CircleStamp(radius, width).Set(picture.Edit(), {20, 15}, 0);
    const PixelGrid grid = expected.Edit();
    for (int y = 0; y < 37; ++y) {
      for (int x = 0; x < 41; ++x) {
        const int i = x - 20 + width / 2, j = y - 15 + width / 2, u = 2 * i - width + 1,
                  v = 2 * j - width + 1;
        const int far = 4 * ((x - 20) * (x - 20) + (y - 15) * (y - 15)),
                  low = std::max(2 * radius - width, 0);
        const bool inDot = i >= 0 && j >= 0 && i < width && j < width && u * u + v * v <= width * width;
        const bool inRing = far >= low * low && far <= (2 * radius + width) * (2 * radius + width);
        if (radius == 0 ? inDot : inRing) *grid.At({x, y}) = 0;
      }
    }
    EXPECT_EQ(PictureText(picture), PictureText(expected)) << radius << " " << width;
  }
}

TEST(Canvas, PaletteHoldsHuesAndGrays) {
  Picture picture(3, 3);
  PaintPalette(picture);
  const auto at = [&](int x, int y) { return ColourText(static_cast<Colour>(picture.PixelAt(x, y))); };
  EXPECT_EQ(at(0, 0) + " " + at(255, 51) + " " + at(77, 59), "255 0 77");
  EXPECT_EQ(at(0, 17), "255/85/85");  // luminance 2/3, red
  EXPECT_EQ(at(64, 34), "85/170/0");  // luminance 1/3, between yellow and green
  EXPECT_EQ(picture.PixelWidth() * 1000 + picture.PixelHeight(), 256060);
}

// Eight reads, a mean half to even, a write, pixel after pixel.
void PlainBlur(Picture& picture) {
  const PixelGrid grid = picture.Edit();
  for (int x = 1; x <= grid.width - 1; x += 5) {
    for (int y = 1; y <= grid.height - 1; y += 5) {
      for (int at = 0; at < 25; ++at) {
        const Pixel p{x + at / 5, y + at % 5};
        double sums[3] = {};
        for (int k = 0; k < 9; ++k) {
          const Colour c = k == 4 ? 0 : ReadPixel(grid, {p.x + k / 3 - 1, p.y + k % 3 - 1});
          sums[0] += Red(c), sums[1] += Green(c), sums[2] += Blue(c);
        }
        WritePixel(
            grid, p,
            Rgb(static_cast<int>(std::nearbyint(sums[0] / 8)), static_cast<int>(std::nearbyint(sums[1] / 8)),
                static_cast<int>(std::nearbyint(sums[2] / 8))));
      }
    }
  }
}

TEST(Canvas, BlurOfAWholePictureEqualsThePlainWalk) {
  for (const auto& [width, height] : {std::pair{1, 4}, {2, 2}, {6, 11}, {33, 28}}) {
    Picture picture = NoisePicture(width, height), plain = picture;
    BlurWholePicture(picture);
    PlainBlur(plain);
    EXPECT_EQ(PictureText(picture), PictureText(plain));
  }
}

}  // namespace
}  // namespace pelorium
