// Profiles from the rings of a generated Part.
#include "geometry/sections_to_profiles.h"

#include <algorithm>

namespace pelorium {

namespace {

void CopyPosition(ProfilePointRec& to, const PointRec& from) {
  to.X = from.X;
  to.Y = from.Y;
  to.Z = from.Z;
}

void ProfileFromSection(ModelStore& model, int part, int section, int width, int rows) {
  int points = 0;
  for (int row = 0; row < rows && points <= kMaxLayer; ++row) {
    const int number = row * width + section + 1;
    if (number > model.Part(part).maxpoints) break;
    CopyPosition(model.ProfilePts(points++, section), model.Points(part, number));
  }
  ProfileHeader& header = model.Profile(section);
  header.first = 0;
  header.count = static_cast<std::int16_t>(std::min(points, kMaxLayer));
  if (points == 0 || points > kMaxLayer) return;
  ProfilePointRec& pen = model.ProfilePts(points, section);
  const ProfilePointRec& last = model.ProfilePts(points - 1, section);
  pen.X = last.X, pen.Y = last.Y, pen.Z = last.Z;
}

}  // namespace

void ProfilesFromSections(ModelStore& model, int part, int width, int rows, int kept) {
  for (int section = 0; section < std::min(width, kMaxProfile + 1); ++section) {
    if (section != kept) ProfileFromSection(model, part, section, width, rows);
  }
}

}  // namespace pelorium
