// Parts of a library as OBJ files.
#include "interchange/obj_part.h"

#include <algorithm>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kDecimals = 3;
constexpr double kPartScale = 0.01;

double Scaled(double coordinate) { return RoundTo(coordinate, kDecimals) * kPartScale; }

void WritePoints(const ModelStore& model, int part, TextWriter& out) {
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    out.Text("v ").General(Scaled(point.X)).Text(" ").General(Scaled(point.Z));
    out.Text(" ").General(Scaled(point.Y)).EndLine();
  }
}

void WriteFaces(const ModelStore& model, int part, long long offset, TextWriter& out) {
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (face.onoff != 1) continue;
    out.Text("f ").Integer(face.corner1pt + offset).Text(" ").Integer(face.corner2pt + offset);
    out.Text(" ").Integer(face.corner3pt + offset).EndLine();
  }
}

}  // namespace

void WriteObjPart(const ModelStore& model, int first, int last, bool withGroups, TextWriter& out) {
  for (int part = first; part <= last; ++part) WritePoints(model, part, out);
  long long offset = 0;
  for (int part = first; part <= last; ++part) {
    if (withGroups) out.Text("g group").Integer(part).EndLine();
    WriteFaces(model, part, offset, out);
    offset += std::max<int>(0, model.Part(part).maxpoints);
  }
}

}  // namespace pelorium
