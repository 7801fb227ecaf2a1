// What the shaded view draws, and how it stands.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The pose of the shaded picture: turns in degrees and moves in model units, as the GL matrix takes them.
struct ShadedPose {
  float RotX = 90, RotY = 0, RotZ = 0;
  double ShadeMoveX = 0, ShadeMoveY = 0, ShadeMoveZ = 0;
};

}  // namespace pelorium
