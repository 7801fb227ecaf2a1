// The readable text of one Part.
#include "interchange/text_part.h"

#include <algorithm>
#include <string>

#include "base/item_reader.h"

namespace pelorium {

namespace {

constexpr int kDecimals = 2;

void WriteWords(TextWriter& out, std::initializer_list<long long> numbers) {
  bool first = true;
  for (const long long number : numbers) {
    if (!first) out.Text(" ");
    out.Integer(number);
    first = false;
  }
  out.EndLine();
}

void ReadPoint(ModelStore& model, int part, int number, ItemReader& in) {
  in.Number();  // the point's number, told by its place
  PointRec& point = model.Points(part, number);
  point.X = in.Number();
  point.Y = in.Number();
  point.Z = in.Number();
  point.onoff = model.PointMark(part, number) = in.Integer<std::int16_t>();
}

void ReadFace(ModelStore& model, int part, int number, ItemReader& in) {
  in.Number();
  FaceRec& face = model.Faces(part, number);
  for (auto corner : {&FaceRec::corner1pt, &FaceRec::corner2pt, &FaceRec::corner3pt}) {
    face.*corner = std::clamp(in.Integer<std::int32_t>(), 1, kMaxPoints);
  }
  face.group = std::clamp<std::int16_t>(in.Integer<std::int16_t>(), 0, kMaxGroup);
  face.onoff = in.Integer<std::int16_t>();
}

// A count that no table holds ends the reading before anything of the Part is changed.
std::int16_t ReadCount(ItemReader& in, int limit) {
  const auto count = in.Integer<std::int16_t>();
  if (count < 0 || count > limit) throw Fault(FaultKind::Subscript, "a count of " + std::to_string(count));
  return count;
}

}  // namespace

void WriteTextPart(const ModelStore& model, int part, TextWriter& out) {
  const PartHeader& header = model.Part(part);
  out.Line("Part Name");
  out.Line(header.PartName);
  out.Line("maxpoints  minpoints  maxfaces  minfaces  ");
  WriteWords(out, {header.maxpoints, header.minpoints, header.maxfaces, header.minfaces});
  out.Line("point# X  Y  Z  point on/off  ");
  int i = 0;
  for (const PointRec& point : PointRange(model, part, 1, header.maxpoints)) {
    out.Integer(++i).Text(" ").Rounded(point.X, kDecimals).Text(" ").Rounded(point.Y, kDecimals);
    out.Text(" ").Rounded(point.Z, kDecimals).Text(" ").Integer(model.PointMark(part, i)).EndLine();
  }
  out.Line("Face# corner1pt# corner2pt# corner3pt# group# on/off");
  int f = 0;
  for (const FaceRec& face : FaceRange(model, part, 1, header.maxfaces)) {
    WriteWords(out, {++f, face.corner1pt, face.corner2pt, face.corner3pt, face.group, face.onoff});
  }
}

void ReadTextPart(ModelStore& model, int part, std::string_view text) {
  ItemReader in(text);
  in.Line();
  const std::string name(in.Line());
  in.Line();
  const auto points = ReadCount(in, kMaxPoints), firstPoint = ReadCount(in, kMaxPoints);
  const auto faces = ReadCount(in, kMaxFaces), firstFace = ReadCount(in, kMaxFaces);
  PartHeader& header = model.Part(part);
  header.grid.reset();
  header.PartName = name;
  header.maxpoints = points, header.minpoints = firstPoint;
  header.maxfaces = faces, header.minfaces = firstFace;
  in.Line();
  for (int i = 1; i <= points; ++i) ReadPoint(model, part, i, in);
  in.Line();
  for (int f = 1; f <= faces; ++f) ReadFace(model, part, f, in);
}

}  // namespace pelorium
