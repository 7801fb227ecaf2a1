// The loops over samples and the marks of the brush.
#include "imaging/gray_levels.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "imaging/canvas.h"

namespace pelorium {

namespace {

constexpr int kInvertWidth = 6;
constexpr int kSprayWidth = 968, kSprayHeight = 670;  // of the view's image, whatever the picture's size

constexpr Colour Gray(int level) { return Rgb(level, level, level); }
int GrayOf(Colour colour) { return GrayLevel(static_cast<int>(colour)); }
int GrayOf(const PixelGrid& grid, Pixel at) { return GrayOf(ReadPixel(grid, at)); }

struct Offsets {
  int count = 0;
  Pixel places[16];
};

Offsets Neighbours(const GrayBlur& blur) {
  Offsets offsets;
  const int reach = blur.isFine ? 1 : 2;
  for (int y = -reach; y <= reach; ++y) {
    for (int x = -reach; x <= reach; ++x) {
      const bool isTaken = blur.isFine ? x != 0 || y != 0 : x != 0 && y != 0;
      if (isTaken) offsets.places[offsets.count++] = {x * blur.step, y * blur.step};
    }
  }
  return offsets;
}

// The whole part of the mean of a place and its neighbours inside the picture.
int MeanAbout(const PixelGrid& grid, Pixel at, const Offsets& offsets) {
  const int reach = std::max(offsets.places[offsets.count - 1].x, offsets.places[offsets.count - 1].y);
  const bool isInside = grid.Holds({at.x - reach, at.y - reach}) && grid.Holds({at.x + reach, at.y + reach});
  int sum = GrayOf(grid, at), count = 1;
  for (int i = 0; i < offsets.count; ++i) {
    const Pixel neighbour = {at.x + offsets.places[i].x, at.y + offsets.places[i].y};
    if (!isInside && !grid.Holds(neighbour)) continue;
    sum += GrayOf(*grid.At(neighbour));
    ++count;
  }
  return sum / count;
}

int WholeRandom(RandomSeries& random, int amount) {
  return static_cast<int>(std::floor((2 * random.Next() - 1) * amount));
}

// The gray of a stroke, after everything that the sliders do to it.
Colour StrokeColour(const PixelGrid& grid, const GrayBrush& brush, const GrayStroke& stroke) {
  int gray = brush.gray;
  if (stroke.blends)
    gray = (gray + MeanAbout(grid, ToPixel(stroke.x, stroke.y), Neighbours({.step = brush.step}))) / 2;
  const double level = gray * brush.brightness / 100.0 + brush.addGray;
  return ColourOf(level, level, level);
}

void SetMark(Picture& picture, const GrayBrush& brush, double x, double y, RandomSeries& random) {
  x += WholeRandom(random, brush.randomX);
  y += WholeRandom(random, brush.randomY);
  const PixelGrid grid = picture.Edit();
  const int old = GrayOf(grid, ToPixel(x, y));
  if (old < brush.filterMin || old > brush.filterMax) return;
  RasteriseDot(grid, ToPixel(x, y), picture.drawWidth, picture.foreColour);
}

}  // namespace

void InvertGrays(Picture& picture, int spacing) {
  picture.drawWidth = kInvertWidth;
  std::vector<std::uint32_t> before = picture.Pixels();
  const PixelGrid grid = picture.Edit(), samples{before.data(), grid.width, grid.height};
  for (int y = 1; y <= grid.height; y += std::max(spacing, 1)) {
    for (int x = 1; x <= grid.width; x += std::max(spacing, 1)) {
      picture.foreColour = Gray(255 - GrayOf(samples, {x, y}));
      RasteriseDot(grid, {x, y}, kInvertWidth, picture.foreColour);
    }
  }
}

void SprayGrays(Picture& picture, int gray, int dotSize, int amount, RandomSeries& random) {
  picture.foreColour = Gray(gray);
  picture.drawWidth = dotSize;
  const PixelGrid grid = picture.Edit();
  for (int i = 0; i < amount; ++i) {
    const int x = static_cast<int>(random.Next() * kSprayWidth);
    const int y = static_cast<int>(random.Next() * kSprayHeight);
    RasteriseDot(grid, {x, y}, dotSize, Gray(gray));
  }
}

void BlurGrays(Picture& picture, const GrayBlur& blur, const std::function<void(int)>& onRow) {
  picture.drawWidth = blur.dotSize;
  const PixelGrid grid = picture.Edit();
  const Offsets offsets = Neighbours(blur);
  for (int y = 1; y <= grid.height; y += std::max(blur.spacing, 1)) {
    for (int x = 1; x <= grid.width; x += std::max(blur.spacing, 1)) {
      picture.foreColour = Gray(MeanAbout(grid, {x, y}, offsets));
      RasteriseDot(grid, {x, y}, blur.dotSize, picture.foreColour);
    }
    if (onRow) onRow(y);
  }
}

void PaintGrays(Picture& picture, const GrayBrush& brush, const GrayStroke& stroke, RandomSeries& random) {
  picture.foreColour = StrokeColour(picture.Edit(), brush, stroke);
  picture.drawWidth = (stroke.sprays ? brush.dotSize : brush.size) + brush.addWidth;
  if (!stroke.sprays) return SetMark(picture, brush, stroke.x, stroke.y, random);
  for (int i = 0; i <= brush.randomPoints / 10; ++i) {
    const double x = stroke.x + (2 * random.Next() - 1) * brush.size / 2;
    const double y = stroke.y + (2 * random.Next() - 1) * brush.size / 2;
    SetMark(picture, brush, x, y, random);
  }
}

void PaintProfileInGray(Picture& picture, const GrayBrush& brush, const GrayStroke& stroke,
                        const ModelStore& model, int profile) {
  picture.foreColour = StrokeColour(picture.Edit(), brush, stroke);
  picture.drawWidth = brush.size + brush.addWidth;
  for (int i = 0; i <= model.Profile(profile).count - 2; ++i) {
    const ProfilePointRec &from = model.ProfilePts(i, profile), &to = model.ProfilePts(i + 1, profile);
    PaintLine(picture, stroke.x + from.X, stroke.y + from.Y, stroke.x + to.X, stroke.y + to.Y);
  }
}

void PaintGrayRamp(Picture& picture) {
  const PixelGrid grid = picture.Edit();
  for (int y = 0; y < grid.height; ++y) {
    for (int x = 0; x < grid.width; ++x) *grid.At({x, y}) = Gray(std::min(x, 255));
  }
}

}  // namespace pelorium
