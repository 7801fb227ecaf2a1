// Profile points as points of a Part.
#include "geometry/profiles_import.h"

#include "base/numbers.h"

namespace pelorium {

void ImportProfilePoints(ModelStore& model, int part, int firstProfile, int lastProfile) {
  int number = 0;
  for (int profile = firstProfile; profile <= lastProfile; ++profile) {
    const int count = model.Profile(profile).count;
    for (int i = 0; count > 0 && i <= count; ++i) {
      const ProfilePointRec& from = model.ProfilePts(i, profile);
      PointRec& to = model.Points(part, ++number);
      CopyPosition(to, from);
      to.onoff = model.PointMark(part, number) = 1;
    }
  }
  model.Part(part).maxpoints = Narrow<std::int16_t>(number);
  model.Part(part).minpoints = 1;
}

}  // namespace pelorium
