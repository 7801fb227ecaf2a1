// Plain files of positions.
#include "interchange/xyz_files.h"

#include <algorithm>
#include <vector>

#include "base/item_reader.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

constexpr int kMostSeparateFaces = kMaxPoints / 3;

void PrintLines(TextWriter& out, std::initializer_list<double> values) {
  for (const double value : values) out.Print(value).EndLine();
}

}  // namespace

void WriteProfilePositions(const ModelStore& model, TextWriter& out) {
  for (int a = 0; a <= kMaxLayer; ++a) {
    for (int b = 0; b <= kMaxProfile; ++b) {
      const ProfilePointRec& point = model.ProfilePts(a, b);
      PrintLines(out, {point.X, point.Y, point.Z});
    }
  }
}

void ReadProfilePositions(ModelStore& model, std::string_view text) {
  ItemReader in(text);
  for (int a = 0; a <= kMaxLayer; ++a) {
    for (int b = 0; b <= kMaxProfile; ++b) {
      for (auto coordinate : {&ProfilePointRec::X, &ProfilePointRec::Y, &ProfilePointRec::Z}) {
        if (in.AtEnd()) return;
        model.ProfilePts(a, b).*coordinate = in.Number();
      }
    }
  }
}

void WriteSeparateFaces(const ModelStore& model, int part, TextWriter& out) {
  for (const FaceRec& f : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (f.onoff != 1) continue;
    PrintLines(out, {f.c1X, f.c1Y, f.c1Z, f.c2X, f.c2Y, f.c2Z, f.c3X, f.c3Y, f.c3Z});
  }
}

void ReadSeparateFaces(ModelStore& model, int part, std::string_view text) {
  ItemReader in(text);
  std::vector<double> numbers;
  while (numbers.size() < 9 * kMostSeparateFaces && !in.AtEnd()) numbers.push_back(in.Number());
  const int faces = static_cast<int>(numbers.size() / 9);
  for (int point = 1; point <= 3 * faces; ++point) {
    const double* xyz = &numbers[3 * static_cast<std::size_t>(point - 1)];
    PointRec& rec = model.Points(part, point);
    rec.X = xyz[0], rec.Y = xyz[1], rec.Z = xyz[2];
    rec.onoff = model.PointMark(part, point) = 1;
  }
  for (int face = 1; face <= faces; ++face) {
    FaceRec& rec = model.Faces(part, face);
    rec.corner1pt = 3 * face - 2, rec.corner2pt = 3 * face - 1, rec.corner3pt = 3 * face;
    rec.onoff = 1;
  }
  PartHeader& header = model.Part(part);
  header.grid.reset();
  header.maxpoints = static_cast<std::int16_t>(3 * faces);
  header.maxfaces = static_cast<std::int16_t>(faces);
  header.minpoints = header.minfaces = 1;
}

}  // namespace pelorium
