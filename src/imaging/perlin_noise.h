// Gradient noise in three dimensions, and pictures of it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "base/random_series.h"
#include "imaging/dib_section.h"

namespace pelorium {

// Improved gradient noise (K. Perlin, "Improving Noise", 2002) with two changes that the pictures depend on:
// the first entry of the permutation is 91 (which is there twice, and 151 not at all), and the second part of
// a gradient is x for the hashes 12 and 13.
class cPerlin3D {
 public:
  cPerlin3D();

  // About -1..1, 0 on whole places. It repeats at every 256 units. Places past 32 bits raise Overflow.
  double Noise(double x, double y, double z) const;

  static double fade(double t) { return t * t * t * (t * (t * 6 - 15) + 10); }
  static double lerp(double t, double a, double b) { return a + t * (b - a); }
  static double grad(int hash, double x, double y, double z);

  // Twice the permutation, so that no index needs to be wrapped.
  std::array<std::int32_t, 512> p;
};

struct PerlinSettings {
  double extent = 1;    // units from the middle of the picture to each of its edges
  int octaveLimit = 1;  // octaves of the frequencies 2, 4, 8 ... are added until one is no longer below it
  bool useAbsolute = false;  // sums of magnitudes: darker, with creases; level and noise have no part then
  bool streaks = false;      // the octaves run away along the first axis
  int level = 128;           // gray of noise 0
  int noiseLevel = 0;        // random levels on top, below it
};

// Fills the surface with grays, column by column, each from the bottom. One number of the series is drawn for
// each pixel unless the magnitudes are used. `onColumn` hears of each column that is done.
void RenderPerlin(cDIBSection& surface, const PerlinSettings& settings, RandomSeries& random,
                  const std::function<void(int)>& onColumn = {});

}  // namespace pelorium
