// The pseudo-random series of the system.
#pragma once

#include <cstdint>
#include <optional>

namespace pelorium {

// A program starts with the same series each time, so that the first colours of the materials are the same and a
// journal played back gives the same project. SplitMix64 (Steele, Lea, Flood 2014) behind it.
class RandomSeries {
 public:
  // The next number, from 0 up to but not including 1.
  double Next();

  // Restarts the series; equal seeds give equal series.
  void Seed(double seed);

  // Restarts the series from the clock's reading, or from the fixed seed once there is one.
  void SeedFromClock(double clockReading) { Seed(fixedClockSeed_.value_or(clockReading)); }

  // Restarts the series now, and makes every later seeding from the clock take `seed` instead.
  void FixClockSeed(double seed);

 private:
  std::uint64_t state_ = 0;
  std::optional<double> fixedClockSeed_;
};

}  // namespace pelorium
