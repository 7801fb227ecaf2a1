// Drawing a profile point by point.
#include "profiles/draw_point.h"

#include <algorithm>

namespace pelorium {

namespace {

void Place(ProfilePointRec& point, const ProfileClick& click) {
  switch (click.plane) {
    case ProfilePlane::XZ:
      point.X = click.across, point.Z = click.up, point.Y = click.third;
      return;
    case ProfilePlane::XY:
      point.X = click.across, point.Y = click.up, point.Z = click.third;
      return;
    case ProfilePlane::ZY:
      point.Z = click.across, point.Y = click.up, point.X = click.third;
      return;
  }
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

}  // namespace pelorium
