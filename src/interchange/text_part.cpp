// The readable text of one Part.
#include "interchange/text_part.h"

#include <algorithm>

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

std::int16_t Held(int count, int limit) { return static_cast<std::int16_t>(std::clamp(count, 0, limit)); }

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
  PartHeader& header = model.Part(part);
  header.grid.reset();
  in.Line();
  header.PartName = in.Line();
  in.Line();
  const int points = in.Integer<std::int16_t>();
  header.minpoints = Held(in.Integer<std::int16_t>(), kMaxPoints);
  const int faces = in.Integer<std::int16_t>();
  header.minfaces = Held(in.Integer<std::int16_t>(), kMaxFaces);
  header.maxpoints = Held(points, kMaxPoints);
  header.maxfaces = Held(faces, kMaxFaces);
  in.Line();
  for (int i = 1; i <= points; ++i) ReadPoint(model, part, i, in);
  in.Line();
  for (int f = 1; f <= faces; ++f) ReadFace(model, part, f, in);
}

}  // namespace pelorium
