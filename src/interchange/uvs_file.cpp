// Files of a UV mapper.
#include "interchange/uvs_file.h"

#include <algorithm>

namespace pelorium {

namespace {

constexpr int kXDecimals = 3, kYDecimals = 2;  // one digit apart: what readers of these files know

void WriteNumbers(TextWriter& out, int a, int b, int c) {
  out.Text("f ").Integer(a).Text(" ").Integer(b).Text(" ").Integer(c).EndLine();
}

// The next number of a face, held at the last point.
template <typename Field>
Field NextPoint(ItemReader& items) {
  return std::min<Field>(items.Integer<Field>(), kMaxPoints);
}

}  // namespace

void WriteUvs(const ModelStore& model, int part, TextWriter& out) {
  const PartHeader& header = model.Part(part);
  for (const PointRec& point : PointRange(model, part, 1, header.vtcount)) {
    out.Text("vt ").General(point.u).Text(" ").General(point.v).EndLine();
  }
  for (const FaceRec& face : FaceRange(model, part, 1, header.vtfacecount)) {
    WriteNumbers(out, face.vt1, face.vt2, face.vt3);
  }
}

void WriteTopViewAsUvs(const ModelStore& model, int part, TextWriter& out) {
  const PartHeader& header = model.Part(part);
  for (const PointRec& point : PointRange(model, part, 1, header.maxpoints)) {
    out.Text("vt ").Rounded(point.X, kXDecimals).Text(" ").Rounded(point.Y, kYDecimals).EndLine();
  }
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), header.maxfaces)) {
    if (face.onoff == 1) WriteNumbers(out, face.corner1pt, face.corner2pt, face.corner3pt);
  }
}

UvLines SplitUvs(ByteSource& file) {
  UvLines lines;
  LineReader reader(file);
  for (std::string_view line; reader.Next(line);) {
    if (line.starts_with("vt ")) lines.points.Take(PickedPart(line), reader.number());
    if (line.starts_with("f ")) lines.faces.Take(PickedPart(line), reader.number());
  }
  return lines;
}

void ReadUvs(ModelStore& model, int part, const UvLines& lines) {
  StoreUvCounts(model.Part(part), lines);
  ItemReader places = lines.points.Items(), numbers = lines.faces.Items();
  for (int i = 1, count = UvPointsIn(lines); i <= count; ++i) {
    PointRec& point = model.Points(part, i);
    point.u = places.Number();
    point.v = places.Number();
    model.PointMark(part, i) = 1;
  }
  for (int i = 1; i <= lines.faces.count(); ++i) {
    FaceRec& face = model.Faces(part, i);
    for (auto number : {&FaceRec::vt1, &FaceRec::vt2, &FaceRec::vt3}) {
      face.*number = NextPoint<std::int16_t>(numbers);
    }
  }
}

void ReadUvsAsModel(ModelStore& model, int part, const UvLines& lines, double scale) {
  ItemReader places = lines.points.Items(), numbers = lines.faces.Items();
  const int points = UvPointsIn(lines);
  for (int i = 1; i <= points; ++i) {
    const double u = places.Number();
    LayUvPoint(model, part, i, u, places.Number());
  }
  for (int i = 1; i <= lines.faces.count(); ++i) {
    FaceRec& face = model.Faces(part, i);
    for (auto corner : {&FaceRec::corner1pt, &FaceRec::corner2pt, &FaceRec::corner3pt}) {
      face.*corner = NextPoint<std::int32_t>(numbers);
    }
    face.onoff = 1;
  }
  for (int i = 1; i <= points; ++i) {
    model.Points(part, i).X *= scale;
    model.Points(part, i).Y *= scale;
  }
  FinishUvModel(model, part, lines);
}

}  // namespace pelorium
