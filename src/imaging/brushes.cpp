// The steps of a move, in their order: each may take draws from the series, and later ones see what earlier
// ones left.
#include "imaging/brushes.h"

#include <cmath>

#include "base/numbers.h"
#include "imaging/canvas.h"

namespace pelorium {

namespace {

int Whole(double value) { return static_cast<int>(std::floor(value)); }

void TakeRandomPen(const BrushImages& images, const BrushSettings& settings, RandomSeries& random) {
  if (settings.randomPen) images.under.foreColour = RandomColour(random);
  if (settings.randomGray) {
    const int gray = Whole(random.Next() * 255);
    images.under.foreColour = Rgb(gray, gray, gray);
  }
  if (settings.randomWidth) {
    images.other.drawWidth = images.under.drawWidth = RandomWidth(random, settings.pointSize);
  }
  if (settings.randomColour) images.under.foreColour = RandomColour(random);
}

int RadiusOf(const BrushSettings& settings, RandomSeries& random) {
  return settings.randomRadius ? Whole(random.Next() * settings.radius) : settings.radius;
}

void SetMark(Picture& picture, const BrushSettings& settings, double x, double y, int radius) {
  settings.circle ? PaintCircle(picture, x, y, radius) : PaintDot(picture, x, y);
}

void SetPatch(Picture& picture, const BrushSettings& settings, const BrushMove& move, RandomSeries& random) {
  const int radius = RadiusOf(settings, random);
  for (double i = 0; i <= settings.patchAmount; ++i) {
    const double x = move.x + settings.patchSize * random.Next() - settings.patchSize / 2;
    const double y = move.y + settings.patchSize * random.Next() - settings.patchSize / 2;
    if (move.isDrawing && move.leftButton) SetMark(picture, settings, x, y, radius);
  }
}

// The mean of the eight pixels about a place, the place left out, times the factor.
Colour BlurredPixel(const PixelGrid& grid, double x, double y, double factor) {
  int red = 0, green = 0, blue = 0;
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy) {
      if (dx == 0 && dy == 0) continue;
      const Colour c = ReadPixel(grid, ToPixel(x + dx, y + dy));
      red += Red(c), green += Green(c), blue += Blue(c);
    }
  }
  return ColourOf(red / 8.0 * factor, green / 8.0 * factor, blue / 8.0 * factor);
}

// Pixels that come later see the new values of those before them.
void BlurSquare(Picture& picture, const BrushSettings& settings, const BrushMove& move) {
  const PixelGrid grid = picture.Edit();
  const double left = move.x - settings.square / 2, top = move.y - settings.square / 2;
  for (int a = 0; a <= settings.square; ++a) {
    for (int b = 0; b <= settings.square; ++b) {
      WritePixel(grid, ToPixel(left + a, top + b),
                 BlurredPixel(grid, left + a, top + b, settings.blurFactor));
    }
  }
}

// Calls `mark(place)` for the square down and right of the pointer, which takes the pen's colour from it.
template <typename Mark>
void ForSquare(const BrushImages& images, const BrushSettings& settings, Mark mark) {
  images.under.drawWidth = 1;
  for (int a = 0; a <= settings.square; ++a) {
    for (int b = 0; b <= settings.square; ++b) mark(a, b);
  }
  images.under.drawWidth = images.other.drawWidth = settings.pointSize;
}

// The other image shows through; what would be read outside the upper one is read at its edge.
void Scrape(const BrushImages& images, const BrushSettings& settings, const BrushMove& move) {
  const PixelGrid to = images.under.Edit(), from = images.other.Edit();
  ForSquare(images, settings, [&](int a, int b) {
    const double x = std::clamp(move.x + a, 0.0, to.width - 1.0),
                 y = std::clamp(move.y + b, 0.0, to.height - 1.0);
    images.under.foreColour = ReadPixel(from, ToPixel(x, y));
    WritePixel(to, ToPixel(move.x + a, move.y + b), images.under.foreColour);
  });
}

void FillBox(const BrushImages& images, const BrushSettings& settings, const BrushMove& move) {
  const PixelGrid to = images.under.Edit();
  ForSquare(images, settings,
            [&](int a, int b) { WritePixel(to, ToPixel(move.x + a, move.y + b), images.under.foreColour); });
}

}  // namespace

Colour RandomColour(RandomSeries& random) {
  const int red = Whole(random.Next() * 255) + 1, green = Whole(random.Next() * 255) + 1;
  return Rgb(red, green, Whole(random.Next() * 255) + 1);
}

int RandomWidth(RandomSeries& random, int pointSize) { return Whole(pointSize * random.Next()) + 1; }

void DrawProfileAt(Picture& picture, double x, double y, const ModelStore& model, int profile) {
  for (int i = 0; i <= model.Profile(profile).count - 2; ++i) {
    const ProfilePointRec &from = model.ProfilePts(i + 1, profile), &to = model.ProfilePts(i, profile);
    PaintLine(picture, x + from.X, y + from.Z, x + to.X, y + to.Z);
  }
}

void MoveBrush(const BrushImages& images, const BrushSettings& settings, const BrushMove& move,
               RandomSeries& random, const ModelStore& model, int profile) {
  const bool strokes = move.isDrawing && move.leftButton;
  TakeRandomPen(images, settings, random);
  if (settings.drawsProfile) {
    if (strokes) DrawProfileAt(images.under, move.x, move.y, model, profile);
    return;
  }
  const int radius = RadiusOf(settings, random);
  if (strokes && !settings.patch && !settings.blurs) SetMark(images.under, settings, move.x, move.y, radius);
  if (settings.patch) SetPatch(images.under, settings, move, random);
  if (settings.blurs && strokes) BlurSquare(images.under, settings, move);
  if (settings.scrapes && move.isDrawing) Scrape(images, settings, move);
  if (settings.fillsBox && move.isDrawing) FillBox(images, settings, move);
}

}  // namespace pelorium
