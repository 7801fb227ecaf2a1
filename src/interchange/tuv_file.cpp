// Files of an unwrapping program.
#include "interchange/tuv_file.h"

#include <algorithm>
#include <array>

#include "base/item_reader.h"

namespace pelorium {

namespace {

constexpr int kHeaderItems = 4, kMostTriangles = kMaxPoints / 3;
constexpr double kColour = 2, kZ = 1;

void WriteGroup(TextWriter& out, int code, double value) {
  out.Print(code).EndLine();
  out.Print(value).EndLine();
}

// The third corner twice, as all such faces have four.
void WriteTriangle(const std::array<double, 6>& uv, TextWriter& out) {
  out.Line("3DFACE");
  out.Print(8).EndLine();
  out.Line("flatpattern");
  WriteGroup(out, 62, kColour);
  for (int k = 0; k < 4; ++k) {
    const auto corner = static_cast<std::size_t>(std::min(k, 2));
    WriteGroup(out, 10 + k, uv[2 * corner]);
    WriteGroup(out, 20 + k, uv[2 * corner + 1]);
    WriteGroup(out, 30 + k, kZ);
  }
  out.Print(0).EndLine();
}

void WriteCorner(TextWriter& out, double x, double y, double z) {
  out.General(x).Text(" ").General(y).Text(" ").General(z).EndLine();
}

}  // namespace

void WriteTuvAsDxf(std::string_view tuv, double scale, TextWriter& out) {
  out.Print(0).EndLine();
  out.Line("SECTION");
  out.Print(2).EndLine();
  out.Line("ENTITIES");
  out.Print(0).EndLine();
  ItemReader in(tuv);
  for (int i = 0; i < kHeaderItems; ++i) in.SkipItem();
  for (int i = 0; i <= kMostTriangles && !in.AtEnd(); ++i) {
    in.SkipItem();
    std::array<double, 6> uv;
    for (double& number : uv) number = in.Number() * scale;
    WriteTriangle(uv, out);
  }
  out.Line("ENDSEC");
  out.Print(0).EndLine();
  out.Line("EOF");
}

void WriteTuvTriangle(const ModelStore& model, int part, TextWriter& out) {
  const FaceRec& face = model.Faces(part, 1);
  out.Print(3).EndLine();
  WriteCorner(out, face.c1X, face.c1Y, face.c1Z);
  WriteCorner(out, face.c2X, face.c2Y, face.c2Z);
  WriteCorner(out, face.c3X, face.c3Y, face.c3Z);
}

}  // namespace pelorium
