// Parts from stacks of profiles.
#include "geometry/profiles_to_points.h"

#include <algorithm>
#include <vector>

#include "geometry/grid.h"

namespace pelorium {

namespace {

std::vector<FaceRec> FacesInUse(const ModelStore& model, int part) {
  const auto faces = FaceRange(model, part, 1, model.Part(part).maxfaces);
  return {faces.begin(), faces.end()};
}

void SetCorners(FaceRec& face, const FaceRec& from, int raisedBy) {
  const auto raised = [raisedBy](int corner) { return std::min(corner + raisedBy, kMaxPoints); };
  face.corner1pt = raised(from.corner1pt);
  face.corner2pt = raised(from.corner2pt);
  face.corner3pt = raised(from.corner3pt);
  face.onoff = from.onoff;
}

}  // namespace

void LayProfiles(ModelStore& model, int part, const ProfileStack& stack, int after) {
  int n = after;
  for (int profile = stack.firstProfile; profile <= stack.lastProfile; ++profile) {
    for (int i = stack.firstPoint; i <= stack.lastPoint && n < kMaxPoints; ++i) {
      const ProfilePointRec& from = model.ProfilePts(i, profile);
      PointRec& point = model.Points(part, ++n);
      point.X = from.X, point.Y = from.Y, point.Z = from.Z;
      point.onoff = model.PointMark(part, n) = 1;
    }
  }
  model.Part(part).maxpoints = static_cast<std::int16_t>(n);
  model.Part(part).minpoints = 1;
}

// The builder numbers faces from 1: the grid is built there and copied behind the faces that are put back.
void AppendGridFaces(ModelStore& model, int part, int width, int rows, int pointsBefore) {
  const std::vector<FaceRec> before = FacesInUse(model, part);
  const int facesBefore = static_cast<int>(before.size());
  BuildGridFaces(model, part, width, rows, Seam::Open);
  const std::vector<FaceRec> grid = FacesInUse(model, part);
  for (int f = 1; f <= facesBefore; ++f) model.Faces(part, f) = before[static_cast<std::size_t>(f - 1)];
  int number = facesBefore;
  for (const FaceRec& face : grid) {
    if (++number >= kMaxFaces) break;
    SetCorners(model.Faces(part, number), face, pointsBefore);
  }
  const auto faces = std::min<std::size_t>(before.size() + grid.size(), kMaxFaces);
  model.Part(part).maxfaces = static_cast<std::int16_t>(faces);
}

}  // namespace pelorium
