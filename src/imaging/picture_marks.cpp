// The draws and lines of each button, and the blur of a whole picture.
#include "imaging/picture_marks.h"

#include <cmath>

#include "imaging/canvas.h"

namespace pelorium {

namespace {

int Whole(double value) { return static_cast<int>(std::floor(value)); }

struct Place {
  int x, y;
};

Place RandomPlace(const Picture& picture, RandomSeries& random) {
  const int x = Whole(random.Next() * picture.PixelWidth());
  return {x, Whole(random.Next() * picture.PixelHeight())};
}

// One mark's place, width and pen, drawn in this order.
Place TakeRandomMark(Picture& picture, const BrushSettings& settings, RandomSeries& random) {
  const Place at = RandomPlace(picture, random);
  if (settings.randomWidth) picture.drawWidth = RandomWidth(random, settings.pointSize);
  if (settings.randomPen) picture.foreColour = RandomColour(random);
  if (settings.randomGray) {
    const int gray = Whole(random.Next() * 255) + 1;
    picture.foreColour = Rgb(gray, gray, gray);
  }
  return at;
}

// Three channels in one number, 16 bits apart: sums of eight do not touch.
std::uint64_t Spread(Colour c) { return (c & 0xFFU) | (c & 0xFF00ULL) << 8 | (c & 0xFF0000ULL) << 16; }
Colour Gathered(std::uint64_t lanes) {
  return static_cast<Colour>((lanes & 0xFF) | (lanes >> 8 & 0xFF00) | (lanes >> 16 & 0xFF0000));
}

// An eighth of each, half to even.
std::uint64_t Eighth(std::uint64_t sums) {
  constexpr std::uint64_t kOnes = 0x0000000100010001, kLevels = 255 * kOnes;
  return (sums + 3 * kOnes + (sums >> 3 & kOnes)) >> 3 & kLevels;
}

constexpr int kBlurBlock = 5;

// The part of a column that lies in one block. What was read for one pixel serves the next.
void BlurDown(const PixelGrid& grid, int x, int top) {
  const int end = std::min(top + kBlurBlock, grid.height);
  const auto at = [&](int column, int row) { return Spread(ReadPixel(grid, {column, row})); };
  std::uint64_t left0 = at(x - 1, top - 1), left1 = at(x - 1, top), above = at(x, top - 1);
  std::uint64_t right0 = at(x + 1, top - 1), right1 = at(x + 1, top);
  for (int y = top; y < end; ++y) {
    const std::uint64_t left2 = at(x - 1, y + 1), below = at(x, y + 1), right2 = at(x + 1, y + 1);
    const std::uint64_t value = Eighth(left0 + left1 + left2 + above + below + right0 + right1 + right2);
    *grid.At({x, y}) = Gathered(value);
    left0 = left1, left1 = left2, above = value, right0 = right1, right1 = right2;
  }
}

}  // namespace

void RandomPoints(Picture& picture, const BrushSettings& settings, int amount, RandomSeries& random) {
  for (int i = 0; i <= amount; ++i) {
    const Place at = TakeRandomMark(picture, settings, random);
    PaintDot(picture, at.x, at.y);
  }
  picture.drawWidth = settings.pointSize;
}

void RandomCircles(Picture& picture, const BrushSettings& settings, int amount, RandomSeries& random) {
  for (int i = 0; i <= amount; ++i) {
    const Place at = TakeRandomMark(picture, settings, random);
    PaintCircle(picture, at.x, at.y,
                settings.randomRadius ? Whole(random.Next() * settings.radius) : settings.radius);
  }
  picture.drawWidth = settings.pointSize;
}

void RandomShades(Picture& picture, const BrushSettings& settings, Colour chosen, RandomSeries& random) {
  for (double i = 0; i <= settings.patchAmount; ++i) {
    const Place at = RandomPlace(picture, random);
    const int red = Whole(random.Next() * Red(chosen)), green = Whole(random.Next() * Green(chosen));
    picture.foreColour = Rgb(red, green, Whole(random.Next() * Blue(chosen)));
    if (settings.blurs) {
      PaintCircle(picture, at.x, at.y, Whole(random.Next() * settings.radius));
    } else {
      PaintDot(picture, at.x, at.y);
    }
  }
}

// The first row and column are never chosen. Outside, which a picture 1 pixel wide has only, is black.
void RandomScrape(Picture& from, Picture& to, const BrushSettings& settings, int amount,
                  RandomSeries& random) {
  to.drawWidth = 1;
  for (int i = 0; i <= amount; ++i) {
    const int x = Whole((from.PixelWidth() - 1) * random.Next()) + 1;
    const int y = Whole((from.PixelHeight() - 1) * random.Next()) + 1;
    to.foreColour = static_cast<Colour>(std::max(from.PixelAt(x, y), 0));
    PaintDot(to, x, y);
  }
  from.drawWidth = to.drawWidth = settings.pointSize;
}

void DrawGrid(Picture& picture, int stepX, int stepY) {
  const int width = picture.PixelWidth(), height = picture.PixelHeight();
  for (int y = 0; y <= height; y += std::max(stepY, 1)) PaintLine(picture, 0, y, width, y);
  for (int x = 0; x <= width; x += std::max(stepX, 1)) PaintLine(picture, x, 0, x, height);
}

void DrawFrame(Picture& picture, int pointSize, Colour colour) {
  const int width = picture.PixelWidth(), height = picture.PixelHeight(), half = pointSize / 2;
  picture.foreColour = colour;
  PaintLine(picture, half, 0, half, height);
  PaintLine(picture, 0, half, width, half);
  PaintLine(picture, width - half, 0, width - half, height);
  PaintLine(picture, 0, height - half, width, height - half);
}

void BlurWholePicture(Picture& picture, const std::function<void(int)>& onColumn) {
  const PixelGrid grid = picture.Edit();
  for (int left = 1; left <= grid.width - 1; left += kBlurBlock) {
    for (int top = 1; top <= grid.height - 1; top += kBlurBlock) {
      for (int x = left; x < std::min(left + kBlurBlock, grid.width); ++x) BlurDown(grid, x, top);
    }
    if (onColumn) onColumn(left);
  }
}

void DrawCanyon(Picture& picture, const ModelStore& model, int profile, int panX, int panY) {
  for (int i = 0; i < kMaxLayer; ++i) {
    const ProfilePointRec &from = model.ProfilePts(i, profile), &to = model.ProfilePts(i + 1, profile);
    PaintLine(picture, from.X + panX, -(from.Z + panY), to.X + panX, -(to.Z + panY));
  }
}

}  // namespace pelorium
