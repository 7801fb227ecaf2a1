// Drawing a profile point by point.
#include "profiles/draw_point.h"

#include <algorithm>

#include "core/axes.h"

namespace pelorium {

namespace {

struct PlaneAxes {
  Axis across, up, third;
};

constexpr PlaneAxes AxesOf(ProfilePlane plane) {
  switch (plane) {
    case ProfilePlane::XZ:
      return {Axis::X, Axis::Z, Axis::Y};
    case ProfilePlane::XY:
      return {Axis::X, Axis::Y, Axis::Z};
    case ProfilePlane::ZY:
      return {Axis::Z, Axis::Y, Axis::X};
  }
  return {Axis::X, Axis::Z, Axis::Y};
}

void Place(ProfilePointRec& point, const ProfileClick& click, MovedAxes moved = {}) {
  const PlaneAxes axes = AxesOf(click.plane);
  if (moved.across) Coordinate(point, axes.across) = click.across;
  if (moved.up) Coordinate(point, axes.up) = click.up;
  Coordinate(point, axes.third) = click.third;
}

}  // namespace

int DrawProfilePoint(ModelStore& model, int profile, const ProfileClick& click) {
  ProfileHeader& header = model.Profile(profile);
  const int slot = std::clamp<int>(header.count, 0, kMaxLayer);
  Place(model.ProfilePts(slot, profile), click);
  if (click.advances && slot < kMaxLayer) {
    header.count = static_cast<std::int16_t>(slot + 1);
    Place(model.ProfilePts(slot + 1, profile), click);
  }
  return slot;
}

void MoveProfilePoint(ModelStore& model, int profile, int layer, const ProfileClick& click, MovedAxes moved) {
  Place(model.ProfilePts(layer, profile), click, moved);
}

double ThirdCoordinate(ProfilePlane plane, const ProfilePointRec& point) {
  return Coordinate(point, AxesOf(plane).third);
}

}  // namespace pelorium
