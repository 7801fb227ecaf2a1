// What the shaded view draws, and how it stands.
#pragma once

#include "views/view_settings.h"

namespace pelorium {

// The pose of the shaded picture: turns in degrees and moves in model units, as the GL matrix takes them.
struct ShadedPose {
  float RotX = 90, RotY = 0, RotZ = 0;
  double ShadeMoveX = 0, ShadeMoveY = 0, ShadeMoveZ = 0;
};

// Everything that the View Options and their companions say about the shaded picture.
struct ShadedSettings {
  ViewSettings shown;  // what is drawn, as in the wire views: showWire stands for the faces
  ShadedPose pose;
  double scale = 0.0007;        // of a model unit; the visible space reaches from -1 to 1 in each direction
  int viewportSide = 637;       // pixels, from the lower left corner of the picture
  bool showEdges = false;       // of the current Part
  bool showOtherEdges = false;  // of the other user Part
};

}  // namespace pelorium
