// Sweeps a profile around an axis: each profile point is a layer, turned into a ring of sections.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// Layers can be named up to here, far beyond those that a profile lays.
inline constexpr int kLastNamedLayer = 119;

struct RevolveSettings {
  int profile = 0;
  int part = 0;
  int firstLayer = 0, lastLayer = 62;      // layers firstLayer .. min(lastLayer, 35) + 1 are laid
  int firstSection = 0, lastSection = 36;  // points of each ring
  int firstPlaced = 0,
      lastPlaced = kLastNamedLayer;  // only these layers get positions; the others keep their points' numbers
  int layersLimit = 62;              // rows of points that the mesh may take
  double degreesPerSection = 10;
  double increment = 1;          // of the point number and of the turn's counter, section by section
  double corkscrew = 0;          // units that each section rises above the one before
  double spiral = 0;             // units that X and Y grow by each section
  int petalsX = 3, petalsY = 3;  // waves of the radius around the ring
  double petalAmp = 0;           // their height, added up along the ring
  double multiplyX = 1, multiplyY = 1;
  bool regularSpacing =
      false;  // sets the profile's Z to the layer number times `spacing`, above the corkscrew's rise
  double spacing = 0;
  Vec3 origin;  // pivot of the general turns
};

// Points in one ring, and rows of points that the mesh may take.
int RingWidth(const RevolveSettings& settings);
int MeshedRows(const RevolveSettings& settings);

// Lays the points, from number 1, and switches those laid on. X of a profile point is the radius and Z the
// height; the radius in Y is kept as a whole number, rounded half to even at each section. Ends with
// maxpoints = (rows + 1) * width + 1, at most 23000, and minpoints 1. A point number outside the table raises
// a Subscript fault and leaves the counts.
void LayRevolvedPoints(ModelStore& model, const RevolveSettings& settings);

}  // namespace pelorium
