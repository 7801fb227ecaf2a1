// The draws of both kinds of noise.
#include "imaging/noise_filters.h"

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kBytes = cDIBSection::kBytesPerPixel;

template <typename Store>
void ForNoisyPixels(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random,
                    const ImageEvents& events, Store store) {
  const int amplitude = Narrow<std::int32_t>(static_cast<std::int64_t>(settings.percent) * 128) / 100;
  const int half = amplitude / 2;
  ForStrips(events, surface.Width(), 0, [&](int first, int end) {
    for (int x = first; x < end; ++x) {
      for (int y = 0; y < surface.Height(); ++y) {
        if (settings.uniform && !(random.Next() * 100 > settings.percent)) continue;
        std::uint8_t* pixel = surface.Row(y) + x * kBytes;
        int levels[kBytes];
        for (int channel = 0; channel < kBytes; ++channel) {
          const double level = RoundHalfEven(random.Next() * amplitude + pixel[channel] - half);
          levels[channel] = static_cast<int>(std::clamp(level, 0.0, 255.0));
        }
        store(pixel, levels);
      }
    }
  });
}

}  // namespace

void AddNoise(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random,
              const ImageEvents& events) {
  ForNoisyPixels(surface, settings, random, events, [](std::uint8_t* pixel, const int* levels) {
    std::fill_n(pixel, kBytes, static_cast<std::uint8_t>((levels[0] + levels[1] + levels[2]) / 3));
  });
}

void AddNoise2(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random,
               const ImageEvents& events) {
  ForNoisyPixels(surface, settings, random, events, [](std::uint8_t* pixel, const int* levels) {
    for (int channel = 0; channel < kBytes; ++channel)
      pixel[channel] = static_cast<std::uint8_t>(levels[channel]);
  });
}

}  // namespace pelorium
