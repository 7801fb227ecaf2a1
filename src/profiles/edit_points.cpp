// Edits of profile points.
#include "profiles/edit_points.h"

#include <algorithm>
#include <utility>

namespace pelorium {

namespace {

template <typename Act>
void ForEach(LayerSpan points, Act act) {
  for (int i = std::max(0, points.first); i <= std::min(points.last, kMaxLayer); ++i) act(i);
}

template <typename Act>
void ForEach(ProfileSpan profiles, Act act) {
  for (int q = std::max(0, profiles.first); q <= std::min(profiles.last, kMaxProfile); ++q) act(q);
}

// Writes the points behind the hinge.
void LayMirrored(ModelStore& model, int profile, ProfileAxis axis) {
  const int hinge = model.Profile(profile).count;
  int source = hinge - 1;
  for (int point = hinge + 1; point <= kMaxLayer; ++point) {
    source = std::max(0, source);
    ProfilePointRec& to = model.ProfilePts(point, profile);
    CopyPosition(to, model.ProfilePts(source, profile));
    to.*axis *= -1.0;
    --source;
  }
}

}  // namespace

void SwapAxes(ModelStore& model, int profile, LayerSpan points, ProfileAxis a, ProfileAxis b) {
  ForEach(points, [&](int i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    std::swap(point.*a, point.*b);
  });
}

void InvertAxis(ModelStore& model, int profile, LayerSpan points, ProfileAxis axis) {
  ForEach(points, [&](int i) { model.ProfilePts(i, profile).*axis *= -1.0; });
}

void SetAxis(ModelStore& model, int profile, LayerSpan points, ProfileAxis axis, double value) {
  ForEach(points, [&](int i) { model.ProfilePts(i, profile).*axis = value; });
}

void SpaceProfiles(ModelStore& model, ProfileSpan profiles, LayerSpan points, ProfileAxis axis,
                   double distance) {
  ForEach(profiles, [&](int q) { SetAxis(model, q, points, axis, q * distance); });
}

void ErasePoints(ModelStore& model, int profile, LayerSpan points) {
  if (points.first > points.last) return;
  ForEach(points, [&](int i) { CopyPosition(model.ProfilePts(i, profile), ProfilePointRec{}); });
  model.Profile(profile).count = 0;
  model.Profile(profile).first = 0;
}

void CopyProfile(ModelStore& model, int from, ProfileSpan profiles, LayerSpan points) {
  if (points.first > points.last) return;
  const ProfileHeader& source = model.Profile(from);
  ForEach(profiles, [&](int q) {
    ForEach(points, [&](int i) { CopyPosition(model.ProfilePts(i, q), model.ProfilePts(i, from)); });
    model.Profile(q).count = source.count;
    model.Profile(q).first = source.first;
  });
}

void MatchPoints(ModelStore& model, int profile, int from, int to) {
  CopyPosition(model.ProfilePts(to, profile), model.ProfilePts(from, profile));
}

void MirrorProfile(ModelStore& model, int profile, ProfileAxis axis) {
  LayMirrored(model, profile, axis);
  std::int16_t& count = model.Profile(profile).count;
  count = static_cast<std::int16_t>(std::min(2 * count, kMaxLayer));
}

void MirrorProfiles(ModelStore& model, ProfileSpan profiles, ProfileAxis axis) {
  ForEach(profiles, [&](int q) {
    LayMirrored(model, q, axis);
    model.Profile(q).count = kMaxLayer;
  });
}

}  // namespace pelorium
