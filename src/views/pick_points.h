// Points of a Part as the mouse meets them in a view.
#pragma once

#include <optional>

#include "views/view_settings.h"

namespace pelorium {

// How a picture shows the model: which way, and where.
struct PickView {
  Projection projection = Projection::Top;
  double panX = 0, panY = 0;
};

enum class PickShape { Circle, Rectangle };

// An area of a picture around x, y, edge included; in the picture's units. A circle's radius is halfHeight.
struct PickArea {
  PickShape shape = PickShape::Circle;
  double x = 0, y = 0;
  double halfWidth = 0, halfHeight = 0;
};

// The area between two opposite corners, in any order.
PickArea RectangleBetween(double x0, double y0, double x1, double y1);

// Switches the points `first`..`last` that lie in the area on or off, whatever they were before: both marks
// of a point. A range outside the table raises a Subscript fault.
void PickPoints(ModelStore& model, int part, int first, int last, const PickView& view, const PickArea& area,
                bool on);

// The point of `first`..`last` nearest to x, y and no further off than `within` units; the lowest number
// where several are.
std::optional<int> NearestPoint(const ModelStore& model, int part, int first, int last, const PickView& view,
                                double x, double y, double within);

// The same of the points 0..`count` of a profile, however far off.
int NearestLayer(const ModelStore& model, int profile, const PickView& view, double x, double y);

// The places of the three pictures of the tri view, and the one whose origin is nearest to x, y (Top before
// Front before Side where several are).
PickView NearestOfTri(double panX, double panY, double separation, double x, double y);

}  // namespace pelorium
