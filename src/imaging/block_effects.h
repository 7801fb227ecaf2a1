// The quick effects: blocks of 9 by 9 pixels, each pixel of which becomes one pixel.
#pragma once

#include "imaging/image_effects.h"

namespace pelorium {

void CyanFast(EffectRun& run);
void MagentaFast(EffectRun& run);
void Poster2(EffectRun& run);

void YellowFast(EffectRun& run);
void GrayFast(EffectRun& run);
void ColourFast(EffectRun& run);

}  // namespace pelorium
