// Drawing a profile point by point.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The axes that a click in the profile view sets; the third coordinate is given.
enum class ProfilePlane {
  XZ,  // seen from the front
  XY,  // seen from above
  ZY   // seen from the side
};

struct ProfileClick {
  ProfilePlane plane = ProfilePlane::XZ;
  double across = 0, up = 0;  // position in the plane, in whole units
  double third = 0;           // the coordinate that the plane does not show
  bool advances = true;       // false: the point stays open for the next click
};

// Writes the point into the profile's pen slot `count` and returns the slot's number (0..36). A click that
// advances adds 1 to `count`, up to 36, and puts the new pen slot onto the point too, so that nothing leads
// to (0, 0, 0). At 36 the last point is written over.
int DrawProfilePoint(ModelStore& model, int profile, const ProfileClick& click);

// What moves of a point that is dragged.
struct MovedAxes {
  bool across = true, up = true;
};

// Puts point `layer` where the click is; an axis that does not move keeps its coordinate. `advances` plays no
// part.
void MoveProfilePoint(ModelStore& model, int profile, int layer, const ProfileClick& click, MovedAxes moved);

// The coordinate that the plane does not show.
double ThirdCoordinate(ProfilePlane plane, const ProfilePointRec& point);

}  // namespace pelorium
