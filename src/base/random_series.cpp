// SplitMix64 as a series of doubles.
#include "base/random_series.h"

#include <bit>

namespace pelorium {

double RandomSeries::Next() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
  z ^= z >> 31;
  return static_cast<double>(z >> 11) * 0x1p-53;
}

void RandomSeries::Seed(double seed) { state_ = std::bit_cast<std::uint64_t>(seed); }

void RandomSeries::FixClockSeed(double seed) {
  fixedClockSeed_ = seed;
  Seed(seed);
}

}  // namespace pelorium
