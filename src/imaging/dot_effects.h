// Effects that turn grays into dots: halftone, white noise, error diffusion. None of them asks the value
// range.
#pragma once

#include "imaging/image_effects.h"

namespace pelorium {

// Every second pixel as a dot at four times its place, the wider the darker it is.
void Halftone(EffectRun& run);

// A dot where the gray lies below a draw.
void WhiteNoise(EffectRun& run);

// A dot where the gray lies below 128; the error goes to the neighbours on the Foreground, which is used up
// by it.
void ErrorDiffuse(EffectRun& run);

}  // namespace pelorium
