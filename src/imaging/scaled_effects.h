// Effects that stamp points, circles or boxes on a Background of another size.
#pragma once

#include "imaging/image_effects.h"

namespace pelorium {

void CyanSlow(EffectRun& run);
void Yellow(EffectRun& run);
void Black(EffectRun& run);
void Poster(EffectRun& run);
void Threshold(EffectRun& run);
void GrayTenLevels(EffectRun& run);
void Solid(EffectRun& run);

void BlueLevels(EffectRun& run);
void GreenLevels(EffectRun& run);
void RedLevels(EffectRun& run);
void MagentaLevels(EffectRun& run);
void GrayNegative(EffectRun& run);
void ColourLevels(EffectRun& run);

}  // namespace pelorium
