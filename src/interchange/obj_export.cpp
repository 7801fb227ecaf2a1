// The OBJ export.
#include "interchange/obj_export.h"

#include <array>

namespace pelorium {

namespace {

constexpr double kScaleDown = 0.001;
constexpr int kDecimals = 3, kScaledDecimals = 4;
constexpr int kFewestFacesForGroup = 2;

void WriteVertices(const ModelStore& model, int part, const ObjExportSettings& settings, TextWriter& out) {
  const int decimals = settings.scaledDown ? kScaledDecimals : kDecimals;
  const double scale = settings.scaledDown ? kScaleDown : 1;
  const double depthScale = settings.dialect == ObjDialect::Older ? -scale : scale;
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    out.Text("v ").Rounded(point.X * scale, decimals).Text(" ").Rounded(point.Z * depthScale, decimals);
    out.Text(" ").Rounded(point.Y * scale, decimals).EndLine();
  }
}

void WriteTextureCoordinates(const ModelStore& model, int part, TextWriter& out) {
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).vtcount)) {
    out.Text("vt ").General(point.u).Text(" ").General(point.v).EndLine();
  }
}

void WriteUseMaterial(int group, TextWriter& out) { out.Text("usemtl material_").Integer(group).EndLine(); }

void WriteFaceLine(const FaceRec& face, bool withTexture, int offset, TextWriter& out) {
  if (face.onoff != 0 && face.onoff != 1) return;
  const std::array<int, 3> points = {face.corner1pt, face.corner2pt, face.corner3pt};
  const std::array<int, 3> textures = {face.vt1, face.vt2, face.vt3};
  out.Text(face.onoff == 1 ? "f" : "#f");
  for (std::size_t corner = 0; corner < 3; ++corner) {
    out.Text(" ").Integer(points[corner] + offset);
    if (withTexture) out.Text("/").Integer(textures[corner] + offset);
  }
  out.EndLine();
}

void WritePart(const ModelStore& model, int part, const ObjExportSettings& settings, int offset,
               TextWriter& out) {
  const PartHeader& header = model.Part(part);
  const bool withMaterials = !settings.materialLibrary.empty();
  const bool isOlder = settings.dialect == ObjDialect::Older;
  if (header.maxfaces >= kFewestFacesForGroup) {
    if (settings.groupPerPart && isOlder) out.Text("g part").Integer(part).EndLine();
    if (settings.groupPerPart && !isOlder) out.Text("g ").Line(header.PartName);
    if (withMaterials) WriteUseMaterial(model.Faces(part, 1).group, out);
  }
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), header.maxfaces)) {
    if (settings.groupPerFace && isOlder) out.Text("g bone_").Integer(face.group).EndLine();
    if (settings.groupPerFace && !isOlder) out.Text("g ").Line(model.MaterialGroups(face.group).GroupName);
    if (settings.groupPerFace && withMaterials) WriteUseMaterial(face.group, out);
    WriteFaceLine(face, settings.textureCoordinates, offset, out);
  }
}

}  // namespace

void WriteObj(const ModelStore& model, const ObjExportSettings& settings, TextWriter& out) {
  if (!settings.materialLibrary.empty()) out.Text("mtllib ").Line(settings.materialLibrary);
  for (int part = 0; part < kUserParts; ++part) WriteVertices(model, part, settings, out);
  if (settings.textureCoordinates) {
    for (int part = 0; part < kUserParts; ++part) WriteTextureCoordinates(model, part, out);
  }
  int offset = 0;
  for (int part = 0; part < kUserParts; ++part) {
    WritePart(model, part, settings, offset, out);
    offset += model.Part(part).maxpoints;
  }
}

}  // namespace pelorium
