// The report on faces. Its wording is what users know and search for.
#include "interchange/object_info.h"

#include <array>
#include <cmath>
#include <string>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kDecimals = 2;
constexpr std::string_view kBlankLine = "  ";

struct Measures {
  std::array<double, 3> edges;  // corner 1 to 2, 2 to 3, 3 to 1
  double area;
  double perimeter;
};

struct Sums {
  int faces = 0;
  double area = 0, perimeter = 0;
};

struct Corner {
  double x, y, z;
  int point;
};

std::array<Corner, 3> CornersOf(const FaceRec& f) {
  return {{{f.c1X, f.c1Y, f.c1Z, f.corner1pt},
           {f.c2X, f.c2Y, f.c2Z, f.corner2pt},
           {f.c3X, f.c3Y, f.c3Z, f.corner3pt}}};
}

double RoundedLength(const Corner& from, const Corner& to) {
  const double dx = to.x - from.x, dy = to.y - from.y, dz = to.z - from.z;
  return RoundTo(std::sqrt(dx * dx + dy * dy + dz * dz), kDecimals);
}

// Heron's formula. Rounded lengths of a sliver can break the triangle's inequality: such a face has no area.
double HeronArea(double a, double b, double c) {
  const double s = (a + b + c) / 2;
  const double radicand = s * (s - a) * (s - b) * (s - c);
  return radicand > 0 ? std::sqrt(radicand) : 0;
}

Measures Measure(const FaceRec& face) {
  const auto corners = CornersOf(face);
  const double a = RoundedLength(corners[0], corners[1]), b = RoundedLength(corners[1], corners[2]);
  const double c = RoundedLength(corners[2], corners[0]);
  return {{a, b, c}, HeronArea(a, b, c), a + b + c};
}

void WriteCorner(std::size_t index, const Corner& corner, double length, TextWriter& out) {
  static constexpr std::array<std::string_view, 3> kCornerTexts = {
      "Corner#1  Dist from triangle corner 1 to 2  ", "Corner#2  Dist from triangle corner 2 to 3  ",
      "Corner#3  Dist from triangle corner 3 to 1  "};
  out.Text(kCornerTexts[index])
      .General(length)
      .Text(" assigned to point#-->")
      .Integer(corner.point)
      .EndLine();
  out.Text("3d Location: X = ").Rounded(corner.x, kDecimals).Text(" Y = ").Rounded(corner.y, kDecimals);
  out.Text(" Z = ").Rounded(corner.z, kDecimals).EndLine();
}

void WriteFace(int part, int number, int faces, const FaceRec& face, const Measures& measures,
               TextWriter& out) {
  out.Text("Part# ").Integer(part).Text(" Triangle Face # ").Integer(number).Text(" of ").Integer(faces);
  out.Line(face.onoff == 1 ? " faces is turned on " : " faces is turned off ");
  const auto corners = CornersOf(face);
  for (std::size_t i = 0; i < corners.size(); ++i) {
    if (i > 0) out.Line(kBlankLine);
    WriteCorner(i, corners[i], measures.edges[i], out);
  }
  out.Text(" Area = ").General(measures.area).EndLine();
  out.Text("Parimiter = ").General(measures.perimeter).EndLine();
}

Sums WritePart(const ModelStore& model, int part, std::string_view perimeterText, TextWriter& out) {
  out.Line(kBlankLine);
  out.Line(kBlankLine);
  out.Text("---------------------------- Part # ").Integer(part).Line("-------------------------------");
  Sums sums{model.Part(part).maxfaces, 0, 0};
  int number = 0;
  for (const FaceRec& face : FaceRange(model, part, 1, sums.faces)) {
    const Measures measures = Measure(face);
    WriteFace(part, ++number, sums.faces, face, measures, out);
    sums.area += measures.area;
    sums.perimeter += measures.perimeter;
  }
  out.Text("Total Faces for Part# ").Integer(part).Text(" is ").Integer(sums.faces).EndLine();
  out.Text("Total Sqr Units in Part# ").Integer(part).Text(" = ").General(sums.area).EndLine();
  out.Text(perimeterText).General(sums.perimeter).EndLine();
  return sums;
}

void WriteHeading(TextWriter& out) { out.Line(" Exported by Pelorium   "); }

}  // namespace

void WriteObjectInfoOfAllParts(const ModelStore& model, TextWriter& out) {
  WriteHeading(out);
  Sums all;
  for (int part = 0; part < kUserParts; ++part) {
    const Sums sums = WritePart(model, part, "Total Part# Face Parimiters = ", out);
    all.faces += sums.faces;
    all.area += sums.area;
    all.perimeter += sums.perimeter;
  }
  out.Text("Total Faces in all Part#'s = ").Integer(all.faces).EndLine();
  out.Text("Total Face Parimiter Lengths in All Part#'s = ").General(all.perimeter).EndLine();
  out.Text("Total Sqr Units in all Parts#'s= ").General(all.area).EndLine();
}

void WriteObjectInfoOfPart(const ModelStore& model, int part, TextWriter& out) {
  WriteHeading(out);
  WritePart(model, part, "Total Part# Face Parimiters Length = ", out);
}

double EstimatedArea(const ModelStore& model, int part) {
  double area = 0;
  for (const FaceRec& face : FaceRange(model, part, 1, model.Part(part).maxfaces)) area += Measure(face).area;
  return area;
}

}  // namespace pelorium
