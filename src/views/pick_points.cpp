// Points under the mouse.
#include "views/pick_points.h"

#include <array>
#include <cmath>
#include <limits>

namespace pelorium {

namespace {

// Where a point stands in the picture.
template <typename Rec>
ScreenPoint PlaceOf(const Rec& point, const PickView& view) {
  const ScreenPoint p = Project(view.projection, point.X, point.Y, point.Z);
  return {view.panX + p.x, view.panY + p.y};
}

double Distance(const ScreenPoint& p, double x, double y) {
  const double dx = p.x - x, dy = p.y - y;
  return std::sqrt(dx * dx + dy * dy);
}

bool IsInside(const PickArea& area, const ScreenPoint& p) {
  if (area.shape == PickShape::Circle) return Distance(p, area.x, area.y) <= area.halfHeight;
  return p.x >= area.x - area.halfWidth && p.x <= area.x + area.halfWidth &&
         p.y >= area.y - area.halfHeight && p.y <= area.y + area.halfHeight;
}

}  // namespace

PickArea RectangleBetween(double x0, double y0, double x1, double y1) {
  return {PickShape::Rectangle, (x0 + x1) / 2, (y0 + y1) / 2, std::abs(x1 - x0) / 2, std::abs(y1 - y0) / 2};
}

void PickPoints(ModelStore& model, int part, int first, int last, const PickView& view, const PickArea& area,
                bool on) {
  const auto mark = static_cast<std::int16_t>(on ? 1 : 0);
  for (int i = first; i <= last; ++i) {
    PointRec& point = model.Points(part, i);
    if (IsInside(area, PlaceOf(point, view))) point.onoff = model.PointMark(part, i) = mark;
  }
}

std::optional<int> NearestPoint(const ModelStore& model, int part, int first, int last, const PickView& view,
                                double x, double y, double within) {
  std::optional<int> nearest;
  double least = within;
  for (int i = first; i <= last; ++i) {
    const double distance = Distance(PlaceOf(model.Points(part, i), view), x, y);
    if (nearest ? distance < least : distance <= least) nearest = i, least = distance;
  }
  return nearest;
}

int NearestLayer(const ModelStore& model, int profile, const PickView& view, double x, double y) {
  int nearest = 0;
  double least = std::numeric_limits<double>::infinity();
  for (int layer = 0; layer <= model.Profile(profile).count; ++layer) {
    const double distance = Distance(PlaceOf(model.ProfilePts(layer, profile), view), x, y);
    if (distance < least) nearest = layer, least = distance;
  }
  return nearest;
}

PickView NearestOfTri(double panX, double panY, double separation, double x, double y) {
  const std::array<PickView, 3> pictures = {{{Projection::Top, panX, panY},
                                             {Projection::Front, panX, panY + separation},
                                             {Projection::Side, panX + separation, panY}}};
  const PickView* nearest = &pictures[0];
  for (const PickView& picture : pictures) {
    if (Distance({picture.panX, picture.panY}, x, y) < Distance({nearest->panX, nearest->panY}, x, y)) {
      nearest = &picture;
    }
  }
  return *nearest;
}

}  // namespace pelorium
