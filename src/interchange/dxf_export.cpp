// The DXF exports.
#include "interchange/dxf_export.h"

#include <string>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kMeshColour = 2;
constexpr int kMeshFlag = 64, kMeshPointFlag = 192, kMeshFaceFlag = 128;
constexpr std::string_view kInnerLayer = "3dface";  // of what a subdivided face adds

// Groups of a code and a value, a line each.
class DxfWriter {
 public:
  explicit DxfWriter(TextWriter& out) : out_(out) {
    out_.Line(" 0 ");
    out_.Line("SECTION");
    out_.Line(" 2 ");
    out_.Line("ENTITIES");
    out_.Line(" 0 ");
  }

  // Each entity and the section's start end with the code that the next name belongs to.
  void Name(std::string_view name) { out_.Line(name); }
  void EndEntity() { out_.Line(" 0 "); }
  void EndFile() {
    out_.Line("ENDSEC");
    out_.Line(" 0 ");
    out_.Line("EOF");
  }

  void Layer(std::string_view layer) { Word(8, layer); }
  void Word(int code, std::string_view word) {
    Code(code);
    out_.Line(word);
  }
  void Number(int code, double value) {
    Code(code);
    out_.Print(value).EndLine();
  }

  // Corner k of an entity, from 0: the codes 10 + k, 20 + k, 30 + k.
  void Place(int k, const Vec3& place) {
    Number(10 + k, place.X);
    Number(20 + k, place.Y);
    Number(30 + k, place.Z);
  }

  // Three corners, the third of them twice. Its numbers are the dearest of the file and formatted once.
  void Corners(const Vec3& a, const Vec3& b, const Vec3& c) {
    Place(0, a);
    Place(1, b);
    const std::string x = PrintedLine(c.X), y = PrintedLine(c.Y), z = PrintedLine(c.Z);
    for (const int k : {2, 3}) {
      Code(10 + k);
      out_.Text(x);
      Code(20 + k);
      out_.Text(y);
      Code(30 + k);
      out_.Text(z);
    }
  }

  void Face(std::string_view layer, int colour, const Vec3& a, const Vec3& b, const Vec3& c) {
    Name("3DFACE");
    Layer(layer);
    Number(62, colour);
    Corners(a, b, c);
    EndEntity();
  }

 private:
  static std::string PrintedLine(double value) { return PrintForm(value) += "\r\n"; }
  void Code(int code) { out_.Text(" ").Integer(code).Text(" \r\n"); }

  TextWriter& out_;
};

struct Triangle {
  Vec3 a, b, c;
};

Triangle CornersOf(const FaceRec& f) {
  return {{f.c1X, f.c1Y, f.c1Z}, {f.c2X, f.c2Y, f.c2Z}, {f.c3X, f.c3Y, f.c3Z}};
}

Vec3 Centroid(const Triangle& t) {
  return {(t.a.X + t.b.X + t.c.X) / 3, (t.a.Y + t.b.Y + t.c.Y) / 3, (t.a.Z + t.b.Z + t.c.Z) / 3};
}

template <typename Place>
Vec3 PlaceOf(const Place& place) {
  return {place.X, place.Y, place.Z};
}

std::string ModelLayer(int number) { return "modelobj" + std::to_string(number); }

// act(face) for the faces that are on.
template <typename Act>
void ForEachFaceOn(const ModelStore& model, int part, Act act) {
  for (const FaceRec& face : FaceRange(model, part, 1, model.Part(part).maxfaces)) {
    if (face.onoff == 1) act(face);
  }
}

void WriteMeshHeader(const PartHeader& header, std::string_view layer, DxfWriter& dxf) {
  dxf.Name("POLYLINE");
  dxf.Layer(layer);
  dxf.Number(66, 1);
  dxf.Number(70, kMeshFlag);
  dxf.Number(71, header.maxpoints);
  dxf.Number(72, header.maxfaces);
  dxf.Number(62, kMeshColour);
  dxf.EndEntity();
}

void BeginMeshVertex(std::string_view layer, const Vec3& place, int flag, DxfWriter& dxf) {
  dxf.Name("VERTEX");
  dxf.Layer(layer);
  dxf.Place(0, place);
  dxf.Number(70, flag);
}

}  // namespace

void WriteDxfTriangles(const ModelStore& model, int part, int colour, std::optional<int> group,
                       TextWriter& out) {
  DxfWriter dxf(out);
  const std::string layer = ModelLayer(part);
  ForEachFaceOn(model, part, [&](const FaceRec& face) {
    if (group && face.group != *group) return;
    const auto [a, b, c] = CornersOf(face);
    dxf.Face(layer, colour, a, b, c);
  });
  dxf.EndFile();
}

void WriteDxfSubdivided(const ModelStore& model, int part, int colour, TextWriter& out) {
  DxfWriter dxf(out);
  const std::string layer = ModelLayer(part);
  ForEachFaceOn(model, part, [&](const FaceRec& face) {
    const Triangle t = CornersOf(face);
    const Vec3 m = Centroid(t);
    dxf.Face(layer, colour, t.a, m, t.b);
    dxf.Face(kInnerLayer, colour, t.b, m, t.c);
    dxf.Face(kInnerLayer, colour, t.c, m, t.a);
  });
  dxf.EndFile();
}

void WriteDxfSolids(const ModelStore& model, int part, int colour, int thickness, TextWriter& out) {
  DxfWriter dxf(out);
  const std::string layer = ModelLayer(part);
  ForEachFaceOn(model, part, [&](const FaceRec& face) {
    dxf.Name("SOLID");
    dxf.Layer(layer);
    dxf.Number(62, colour);
    dxf.Word(100, "AcDbTrace");
    const auto [a, b, c] = CornersOf(face);
    dxf.Corners(a, b, c);
    dxf.Number(39, thickness);
    dxf.Number(210, 0);
    dxf.Number(220, 0);
    dxf.Number(230, 1);
    dxf.EndEntity();
  });
  dxf.EndFile();
}

void WriteDxfPoints(const ModelStore& model, int part, int colour, TextWriter& out) {
  DxfWriter dxf(out);
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    dxf.Name("POINT");
    dxf.Layer("points" + std::to_string(part));
    dxf.Number(62, colour);
    dxf.Place(0, PlaceOf(point));
    dxf.EndEntity();
  }
  dxf.EndFile();
}

void WriteDxfMesh(const ModelStore& model, int part, TextWriter& out) {
  DxfWriter dxf(out);
  const PartHeader& header = model.Part(part);
  const std::string layer = ModelLayer(part);
  WriteMeshHeader(header, layer, dxf);
  for (const PointRec& point : PointRange(model, part, 1, header.maxpoints)) {
    BeginMeshVertex(layer, PlaceOf(point), kMeshPointFlag, dxf);
    dxf.EndEntity();
  }
  for (const FaceRec& face : FaceRange(model, part, 1, header.maxfaces)) {
    BeginMeshVertex(layer, {}, kMeshFaceFlag, dxf);
    dxf.Number(71, face.corner1pt);
    dxf.Number(72, face.corner2pt);
    dxf.Number(73, face.corner3pt);
    dxf.EndEntity();
  }
  dxf.Name("SEQEND");
  dxf.Layer(layer);
  dxf.EndEntity();
  dxf.EndFile();
}

void WriteDxfProfiles(const ModelStore& model, int colour, TextWriter& out) {
  DxfWriter dxf(out);
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    for (int i = 0; i < model.Profile(profile).count; ++i) {
      dxf.Name("LINE");
      dxf.Layer(ModelLayer(profile));
      dxf.Number(62, colour);
      dxf.Place(0, PlaceOf(model.ProfilePts(i, profile)));
      dxf.Place(1, PlaceOf(model.ProfilePts(i + 1, profile)));
      dxf.EndEntity();
    }
  }
  dxf.EndFile();
}

void WriteDxfProfileGrid(const ModelStore& model, const ProfileGrid& grid, int colour, TextWriter& out) {
  DxfWriter dxf(out);
  for (int profile = grid.firstProfile; profile < grid.lastProfile; ++profile) {
    for (int point = grid.firstPoint; point < grid.lastPoint; ++point) {
      for (const CellTriangle& t : TrianglesOfCell(model, profile, point)) {
        dxf.Face("obj", colour, PlaceOf(*t[0]), PlaceOf(*t[1]), PlaceOf(*t[2]));
      }
    }
  }
  dxf.EndFile();
}

}  // namespace pelorium
