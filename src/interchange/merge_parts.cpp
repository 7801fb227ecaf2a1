// Combine and Collapse.
#include "interchange/merge_parts.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/item_reader.h"
#include "core/erase_part.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

constexpr int kDecimals = 3;

// What a line holds behind "v " or "f " counts up to this many characters; a longer one loses its end.
constexpr std::size_t kCharactersKept = 32;

struct MergedParts {
  std::vector<Vec3> points;
  std::vector<std::array<int, 3>> faces;
};

void WritePoints(const ModelStore& model, int part, TextWriter& out) {
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    out.Text("v ").Rounded(point.X, kDecimals).Text(" ").Rounded(point.Z, kDecimals);
    out.Text(" ").Rounded(point.Y, kDecimals).EndLine();
  }
}

void WriteFaces(const ModelStore& model, int part, long long offset, TextWriter& out) {
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (face.onoff != 1) continue;
    out.Text("f ").Integer(face.corner1pt + offset).Text(" ").Integer(face.corner2pt + offset);
    out.Text(" ").Integer(face.corner3pt + offset).EndLine();
  }
}

// The numbers of one kind of line, one line after another.
struct Lines {
  std::string items;
  std::size_t count = 0;

  void Take(std::string_view line) {
    items += line.substr(2, kCharactersKept);
    items += '\n';
    ++count;
  }
};

void CheckFits(std::size_t count, int limit, const char* what) {
  if (count <= static_cast<std::size_t>(limit)) return;
  throw Fault(FaultKind::Subscript, std::to_string(count) + " " + what + " in both Parts");
}

int ReadCorner(ItemReader& in) {
  const int corner = in.Integer<std::int32_t>();
  if (corner < 0) throw Fault(FaultKind::Subscript, "point " + std::to_string(corner));
  return std::min(corner, kMaxPoints);
}

MergedParts ReadMerged(std::string_view text) {
  Lines points, faces;
  for (ItemReader in(text); !in.AtEnd();) {
    const std::string_view line = in.Line();
    if (line.starts_with("v ")) points.Take(line);
    if (line.starts_with("f ")) faces.Take(line);
  }
  CheckFits(points.count, kMaxPoints, "points");
  CheckFits(faces.count, kMaxFaces, "faces");
  MergedParts merged;
  merged.points.resize(points.count);
  merged.faces.resize(faces.count);
  ItemReader places(points.items), corners(faces.items);
  for (Vec3& point : merged.points) {
    point.X = places.Number();
    point.Z = places.Number();
    point.Y = places.Number();
  }
  for (auto& face : merged.faces) {
    for (int& corner : face) corner = ReadCorner(corners);
  }
  return merged;
}

MergedParts Merge(const ModelStore& model, const ScratchPlaces& places) {
  return ReadMerged(ThroughScratchFile(places, [&model](TextWriter& out) { WriteMergedParts(model, out); }));
}

void Store(ModelStore& model, int part, const MergedParts& merged) {
  int number = 0;
  for (const Vec3& point : merged.points) LayPoint(model, part, ++number, point);
  number = 0;
  for (const auto& corners : merged.faces) {
    FaceRec& face = model.Faces(part, ++number);
    face.corner1pt = corners[0], face.corner2pt = corners[1], face.corner3pt = corners[2];
    face.onoff = 1;
  }
  PartHeader& header = model.Part(part);
  header.maxpoints = static_cast<std::int16_t>(merged.points.size());
  header.maxfaces = static_cast<std::int16_t>(merged.faces.size());
  header.minpoints = header.minfaces = 1;
  header.grid.reset();
}

}  // namespace

void WriteMergedParts(const ModelStore& model, TextWriter& out) {
  for (int part = 0; part < kUserParts; ++part) WritePoints(model, part, out);
  int offset = 0;
  for (int part = 0; part < kUserParts; ++part) {
    WriteFaces(model, part, offset, out);
    offset += std::max<int>(0, model.Part(part).maxpoints);
  }
}

void CombineParts(ModelStore& model, int part, OtherParts others, const ScratchPlaces& places) {
  const MergedParts merged = Merge(model, places);
  if (others == OtherParts::AreErased) {
    for (int each = 0; each < kUserParts; ++each) ErasePart(model, each);
  }
  Store(model, part, merged);
}

}  // namespace pelorium
