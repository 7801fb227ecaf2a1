// Effects that carry the Foreground's samples over to their own places, or to those of half or twice the
// size.
#pragma once

#include "imaging/image_effects.h"

namespace pelorium {

void TransferGray(EffectRun& run);
void TransferColour(EffectRun& run);
void Colorize2(EffectRun& run);
void TransferGrayNegative(EffectRun& run);
void TransferColourNegative(EffectRun& run);
void HalfSize(EffectRun& run);
void DoubleSize(EffectRun& run);

// Each channel to a multiple of the divisor, which stays behind as the level divisor. Nothing while it is
// off.
void ReduceColours(const EffectSettings& settings, int (&channels)[3], double& levelDivisor);

}  // namespace pelorium
