// Copy, Paste and Paste Into.
#include "core/copy_part.h"

#include <algorithm>
#include <array>

namespace pelorium {

namespace {

constexpr std::array kCorners = {&FaceRec::corner1pt, &FaceRec::corner2pt, &FaceRec::corner3pt};

void CopyFace(const FaceRec& from, FaceRec& to) {
  const std::array uvPoints = {to.vt1, to.vt2, to.vt3};
  to = from;
  to.vt1 = uvPoints[0], to.vt2 = uvPoints[1], to.vt3 = uvPoints[2];
}

// Points 1..count of `from` behind the point `before` of `to`.
void CopyPoints(ModelStore& model, int from, int to, int count, int before) {
  for (int i = 1; i <= count; ++i) {
    const PointRec& source = model.Points(from, i);
    PointRec& point = model.Points(to, before + i);
    CopyPosition(point, source);
    point.onoff = source.onoff;
    model.PointMark(to, before + i) = model.PointMark(from, i);
  }
}

bool Fits(const FaceRec& face, int pointsBefore) {
  return std::all_of(kCorners.begin(), kCorners.end(),
                     [&](auto corner) { return face.*corner <= kMaxPoints - pointsBefore; });
}

// Returns the number of the last face written.
int AppendFaces(ModelStore& model, int from, int to, int facesBefore, int pointsBefore) {
  int last = facesBefore;
  for (const FaceRec& source : FaceRange(model, from, 1, model.Part(from).maxfaces)) {
    if (last == kMaxFaces) break;
    if (!Fits(source, pointsBefore)) continue;
    FaceRec& face = model.Faces(to, ++last);
    CopyFace(source, face);
    for (const auto corner : kCorners) face.*corner += pointsBefore;
  }
  return last;
}

}  // namespace

void CopyPart(ModelStore& model, int from, int to) {
  const PartHeader& source = model.Part(from);
  PartHeader& header = model.Part(to);
  header.grid.reset();
  header.maxfaces = source.maxfaces;
  header.minfaces = source.minfaces;
  for (int i = 1; i <= source.maxfaces; ++i) CopyFace(model.Faces(from, i), model.Faces(to, i));
  header.PartName = source.PartName;
  header.minpoints = source.minpoints;
  header.maxpoints = source.maxpoints;
  header.Sections = source.Sections;
  CopyPoints(model, from, to, source.maxpoints, 0);
}

void AppendPart(ModelStore& model, int from, int to) {
  const PartHeader& source = model.Part(from);
  PartHeader& header = model.Part(to);
  const int pointsBefore = std::max<int>(0, header.maxpoints);  // a count may stand at -1
  const int facesBefore = std::max<int>(0, header.maxfaces);
  const int points = std::min<int>(source.maxpoints, kMaxPoints - pointsBefore);
  header.grid.reset();
  header.minfaces = source.minfaces;
  header.Sections = source.Sections;
  header.maxfaces = static_cast<std::int16_t>(AppendFaces(model, from, to, facesBefore, pointsBefore));
  header.minpoints = source.minpoints;
  header.maxpoints = static_cast<std::int16_t>(pointsBefore + std::max(0, points));
  CopyPoints(model, from, to, points, pointsBefore);
}

}  // namespace pelorium
