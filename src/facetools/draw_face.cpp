// The picture of one face.
#include "facetools/draw_face.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/numbers.h"
#include "facetools/face_measures.h"

namespace pelorium {

namespace {

constexpr double kPartOfPicture = 0.9;
constexpr int kCornerWidth = 6, kEdgeWidth = 2;  // pixels
constexpr int kSideOfLargeText = 480;            // pixels of a picture whose text is large
constexpr std::array<Colour, 3> kCornerColours = {Rgb(255, 80, 80), Rgb(80, 230, 80), Rgb(110, 140, 255)};
constexpr std::array<const char*, 3> kCornerTexts = {
    " Red pt(c1)    match pt>>>", " Green pt(c2) match pt>>>", " Blue pt(c3)   match pt>>>"};
constexpr std::array<const char*, 3> kEdgeTexts = {" Dist (c1)->(c2) ", " Dist (c2)->(c3) ",
                                                   " Dist (c3)->(c1) "};

struct Flat {
  double x, y;
};

// Corner 1 at 0, 0 and corner 2 on the X axis; rounded lengths that do not meet leave corner 3 on the axis.
std::array<Flat, 3> LaidByLengths(const EdgeLengths& l) {
  if (l.ab == 0) return {{{0, 0}, {0, 0}, {l.ca, 0}}};
  const double x = (l.ab * l.ab + l.ca * l.ca - l.bc * l.bc) / (2 * l.ab);
  return {{{0, 0}, {l.ab, 0}, {x, std::sqrt(std::max(0.0, l.ca * l.ca - x * x))}}};
}

struct Extent {
  double left, right, height;
  double larger() const { return std::max(right - left, height); }
};

Extent ExtentOf(const std::array<Flat, 3>& laid) {
  return {std::min(0.0, laid[2].x), std::max(laid[1].x, laid[2].x), laid[2].y};
}

double ViewScale(const Extent& extent, const Picture& picture) {
  const double side = std::min(picture.PixelWidth(), picture.PixelHeight());
  return extent.larger() > 0 ? kPartOfPicture * side / extent.larger() : 1;
}

void DrawTriangle(const std::array<Flat, 3>& laid, const Extent& extent, double scale, Picture& picture) {
  const auto at = [&](const Flat& p) {
    return Pixel{
        ToInteger<int>(picture.PixelWidth() / 2.0 + (p.x - (extent.left + extent.right) / 2) * scale),
        ToInteger<int>(picture.PixelHeight() / 2.0 - (p.y - extent.height / 2) * scale)};
  };
  picture.drawWidth = kEdgeWidth;
  for (std::size_t i = 0; i < laid.size(); ++i) {
    picture.foreColour = kCornerColours[i];
    picture.LineBetween(at(laid[i]), at(laid[(i + 1) % laid.size()]));
  }
  picture.drawWidth = kCornerWidth;
  for (std::size_t i = 0; i < laid.size(); ++i) picture.DotAt(at(laid[i]), kCornerColours[i]);
  picture.drawWidth = 1;
}

// Writes lines one below the other.
class TextBlock {
 public:
  explicit TextBlock(Picture& picture)
      : picture_(picture),
        size_(std::min(picture.PixelWidth(), picture.PixelHeight()) < kSideOfLargeText ? TextSize::Small
                                                                                       : TextSize::Large) {}

  std::size_t LettersPerLine() const {
    return static_cast<std::size_t>(picture_.PixelWidth() / CellOf(size_).width);
  }
  void Line(const std::string& text, Colour colour = Rgb(224, 224, 224)) {
    for (const Pixel& shift :
         {Pixel{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {  // so that it reads on the triangle's edges
      picture_.Text({shift.x, y_ + shift.y}, text, picture_.backColour, size_);
    }
    picture_.Text({0, y_}, text, colour, size_);
    y_ += CellOf(size_).height;
  }

 private:
  Picture& picture_;
  TextSize size_;
  int y_ = 0;
};

void WriteCorners(const ModelStore& model, int part, int face, TextBlock& text) {
  const FaceRec& f = model.Faces(part, face);
  const std::array<int, 3> numbers = {f.corner1pt, f.corner2pt, f.corner3pt};
  const auto matching = MatchingPoints(model, part, face, text.LettersPerLine() / 2);  // " 1" is the shortest
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    std::string line = std::to_string(numbers[i]) + kCornerTexts[i];
    for (const int other : matching[i]) line += " " + std::to_string(other);
    text.Line(line, kCornerColours[i]);
  }
}

}  // namespace

void DrawFace(const ModelStore& model, int part, int face, Picture& picture) {
  picture.Clear();
  const EdgeLengths lengths = LengthsOf(CornersOf(model, part, face));
  const std::array<Flat, 3> laid = LaidByLengths(lengths);
  const Extent extent = ExtentOf(laid);
  const double scale = ViewScale(extent, picture);
  DrawTriangle(laid, extent, scale, picture);

  TextBlock text(picture);
  text.Line(" ");
  text.Line(" Triangle Face# " + std::to_string(face) + " of " + std::to_string(model.Part(part).maxfaces));
  WriteCorners(model, part, face, text);
  const std::array<double, 3> edges = {lengths.ab, lengths.bc, lengths.ca};
  for (std::size_t i = 0; i < edges.size(); ++i) text.Line(kEdgeTexts[i] + GeneralForm(edges[i]));
  text.Line(" Parimiter = " + GeneralForm(Perimeter(lengths)));
  text.Line(" Area = " + GeneralForm(Area(lengths)));
  text.Line(" View Scale " + GeneralForm(scale));
}

}  // namespace pelorium
