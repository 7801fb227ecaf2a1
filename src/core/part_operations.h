// Operations on whole Parts.
#pragma once

#include <string>

#include "core/model_store.h"

namespace pelorium {

// Puts a point to X, Y, Z of `place` and switches it on, in both of its marks.
template <typename Place>
void LayPoint(ModelStore& model, int part, int number, const Place& place) {
  PointRec& point = model.Points(part, number);
  CopyPosition(point, place);
  point.onoff = model.PointMark(part, number) = 1;
}

// A file may hold any numbers as corners; a face with one outside the table of points cannot be drawn or
// followed.
bool CornersAreInTable(const FaceRec& face);

// Copies the positions of each face's corner points into the face, for the faces in use of one Part. A face
// with a corner outside the table stays as it is.
void SyncFaceCorners(ModelStore& model, int part);

// A factor or a move can take a coordinate out of the range that files and views hold: an Overflow fault.
void RequireFinite(const PointRec& point);

// Moves the whole table of points of a Part, in use or not, so that its point 1 lies on `place`. A place that
// would be no finite number any more ends it with an Overflow fault.
void MovePartTo(ModelStore& model, int part, const Vec3& place);

// "12faces  points 8", as the View Options show it.
std::string CountCaption(const ModelStore& model, int part);

}  // namespace pelorium
