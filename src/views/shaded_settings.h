// What the shaded view draws, and how it stands.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The pose of the shaded picture: turns in degrees and moves in model units, as the GL matrix takes them.
struct ShadedPose {
  float RotX = 90, RotY = 0, RotZ = 0;
  double ShadeMoveX = 0, ShadeMoveY = 0, ShadeMoveZ = 0;
};

// Everything that the View Options and their companions say about the shaded picture.
struct ShadedSettings {
  ShadedPose pose;
  double scale = 0.0007;   // of a model unit; the visible space reaches from -1 to 1 in each direction
  int viewportSide = 637;  // pixels, from the lower left corner of the picture
  int gridSpacing = 50;    // units, at least 1
  int currentPart = 0, currentProfile = 0;
  int firstChosenPoint = 1, lastChosenPoint = 0;
  int chosenPoint = 0;  // drawn in a colour of its own
  int chosenFace = 1;
  Vec3 origin;
  bool showGrid = true;
  bool showOrigin = true;
  bool showFaces = true;  // of both user Parts
  bool showChosenFace = false;
  bool showEdges = false;          // of the current Part
  bool showOtherEdges = false;     // of the other user Part
  bool showOtherProfiles = false;  // all but the current one
  bool showProfile = false;
  bool showChosenPoints = true;  // the chosen range of the current Part
  bool showAllPoints = false;    // of both user Parts
};

}  // namespace pelorium
