// The OBJ import.
#include "interchange/obj_import.h"

#include <algorithm>

#include "core/part_operations.h"
#include "interchange/obj_slash_faces.h"

namespace pelorium {

namespace {

int ReadPoints(ModelStore& model, int part, const PickedLines& lines) {
  const int count = static_cast<int>(std::min<std::int64_t>(lines.count(), kMaxPoints));
  ItemReader items = lines.Items();
  for (int i = 1; i <= count; ++i) {
    PointRec& point = model.Points(part, i);
    point.X = items.Number();
    point.Z = items.Number();
    point.Y = items.Number();
    point.onoff = model.PointMark(part, i) = 1;
  }
  return count;
}

// The face after the last one of the table ends the import, with all that fit in their places.
template <typename NextCorners>
int ReadFaces(ModelStore& model, int part, std::int64_t count, NextCorners next) {
  for (int i = 1; i <= count; ++i) {
    FaceRec& face = model.Faces(part, i);
    next(face);
    face.onoff = 1;
  }
  return static_cast<int>(count);
}

int ReadPlainFaces(ModelStore& model, int part, const PickedLines& lines) {
  ItemReader items = lines.Items();
  return ReadFaces(model, part, lines.count(), [&items](FaceRec& face) {
    for (auto corner : {&FaceRec::corner1pt, &FaceRec::corner2pt, &FaceRec::corner3pt}) {
      face.*corner = std::min(items.Integer<std::int32_t>(), kMaxPoints);
    }
  });
}

int ReadSlashFaces(ModelStore& model, int part, const PickedLines& lines) {
  SlashFaceParser parser(lines);
  return ReadFaces(model, part, lines.count(), [&parser](FaceRec& face) {
    parser.Next({&face.corner1pt, &face.corner2pt, &face.corner3pt});
  });
}

void RequireCornersInTable(const ModelStore& model, int part, int faces) {
  for (const FaceRec& face : FaceRange(model, part, 1, faces)) {
    if (CornersAreInTable(face)) continue;
    const auto outside = [](std::int32_t corner) { return corner < 0 || corner > kMaxPoints; };
    const auto corner = outside(face.corner1pt)   ? face.corner1pt
                        : outside(face.corner2pt) ? face.corner2pt
                                                  : face.corner3pt;
    throw Fault(FaultKind::Subscript, "corner " + std::to_string(corner));
  }
}

void ScalePoints(ModelStore& model, int part, int points, double factor) {
  for (int i = 1; i <= points; ++i) {
    PointRec& point = model.Points(part, i);
    point.X *= factor;
    point.Y *= factor;
    point.Z *= factor;
    RequireFinite(point);
  }
}

}  // namespace

ObjLines SplitObj(ByteSource& file, ObjKind kind, bool offFacesAsOn) {
  const bool isPlain = kind == ObjKind::Plain;
  ObjLines lines;
  LineReader reader(file);
  for (std::string_view line; reader.Next(line);) {
    if (line.starts_with("v ")) {
      lines.points.Take(PickedPart(line), reader.number());
    } else if (line.starts_with("f ") || (isPlain && offFacesAsOn && line.starts_with("#f"))) {
      lines.faces.Take(isPlain ? PickedPart(line) : line.substr(0, kLongestSlashLine), reader.number());
    }
  }
  return lines;
}

void ReadObjLines(ModelStore& model, int part, const ObjLines& lines, const ObjImportSettings& settings) {
  PartHeader& header = model.Part(part);
  header.grid.reset();
  const int points = ReadPoints(model, part, lines.points);
  const int faces = settings.kind == ObjKind::Plain ? ReadPlainFaces(model, part, lines.faces)
                                                    : ReadSlashFaces(model, part, lines.faces);
  ScalePoints(model, part, points, settings.scale);
  RequireCornersInTable(model, part, faces);
  header.maxpoints = static_cast<std::int16_t>(points);
  header.maxfaces = static_cast<std::int16_t>(faces);
  header.minpoints = header.minfaces = 1;
  // Before the move: where the views are told not to follow points, they show the model as the file has it.
  SyncFaceCorners(model, part);
  if (settings.origin) MovePartTo(model, part, *settings.origin);
}

void ReadObj(ModelStore& model, int part, ByteSource& file, const ObjImportSettings& settings) {
  ReadObjLines(model, part, SplitObj(file, settings.kind, settings.offFacesAsOn), settings);
}

}  // namespace pelorium
