// Parts from profiles.
#include "geometry/profiles_to_points.h"

#include "core/part_operations.h"

namespace pelorium {

namespace {

// Lays points first..last of a profile behind point `after` of the Part and returns the last one's number.
int LayRow(ModelStore& model, int part, int profile, int first, int last, int after) {
  for (int i = first; i <= last && after < kMaxPoints; ++i) {
    LayPoint(model, part, ++after, model.ProfilePts(i, profile));
  }
  return after;
}

void EndPointsAt(ModelStore& model, int part, int number) {
  model.Part(part).maxpoints = static_cast<std::int16_t>(number);
  model.Part(part).minpoints = 1;
}

}  // namespace

void LayProfiles(ModelStore& model, int part, const ProfileStack& stack, int after) {
  int number = after;
  for (int profile = stack.firstProfile; profile <= stack.lastProfile; ++profile) {
    number = LayRow(model, part, profile, stack.firstPoint, stack.lastPoint, number);
  }
  EndPointsAt(model, part, number);
}

void ImportProfilePoints(ModelStore& model, int part, int firstProfile, int lastProfile) {
  int number = 0;
  for (int profile = firstProfile; profile <= lastProfile; ++profile) {
    const int count = model.Profile(profile).count;
    if (count > 0) number = LayRow(model, part, profile, 0, count, number);
  }
  EndPointsAt(model, part, number);
}

}  // namespace pelorium
