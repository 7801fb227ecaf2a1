// Pushes, scales or pulls the chosen points that lie near the points of profiles.
#pragma once

#include <optional>

#include "core/chosen_points.h"

namespace pelorium {

enum class BulgeEffect {
  Add,       // coordinate + amount
  Multiply,  // coordinate * amount, about zero
  Power,     // |coordinate| to the power of amount, its sign kept; zero stays
  Snap,      // the profile point's coordinate
};

struct BulgeSettings {
  ChosenPoints chosen;
  int firstProfile = 0, lastProfile = 0;  // their points 0 .. count - 2 reach out
  double radius = 0;                      // units, edge included
  std::optional<Vec3> box;                // instead of the radius: the reach on each axis
  bool alongX = true, alongY = true, alongZ = true;
  BulgeEffect effect = BulgeEffect::Add;
  double amount = 0;
};

// Profiles, their points, and then the points of the Part are walked in the order of their numbers. A point
// is moved once at most: by the first profile point that reaches it. A coordinate that is no finite number
// any more raises an Overflow fault.
void Bulge(ModelStore& model, const BulgeSettings& settings);

}  // namespace pelorium
