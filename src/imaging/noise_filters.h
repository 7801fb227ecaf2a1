// Noise laid over a surface.
#pragma once

#include <cstdint>

#include "base/random_series.h"
#include "imaging/image_strips.h"

namespace pelorium {

// Levels move by up to percent * 128 / 200 either way. Uniform noise reaches only the pixels whose draw of
// 0..100 lies above `percent`: a higher percent touches fewer of them. The draws go column by column, each
// from the bottom.
struct NoiseSettings {
  std::int32_t percent = 20;
  bool uniform = false;
};

// The mean of three such levels in all channels. A percent past 32 bits of its product raises Overflow.
void AddNoise(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random,
              const ImageEvents& events = {});

// Each channel by itself.
void AddNoise2(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random,
               const ImageEvents& events = {});

}  // namespace pelorium
