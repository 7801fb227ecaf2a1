// Profiles from the rings of a generated Part.
#include "geometry/sections_to_profiles.h"

#include <algorithm>

#include "core/profile_from_points.h"

namespace pelorium {

void ProfilesFromSections(ModelStore& model, int part, int width, int rows, int kept) {
  for (int section = 0; section < std::min(width, kMaxProfile + 1); ++section) {
    if (section != kept) ProfileFromPoints(model, section, {part, section + 1, width, rows});
  }
}

}  // namespace pelorium
