// The random series and the colours' channels.
#include "base/random_series.h"

#include <cmath>

#include "base/colour.h"
#include "support/harness.h"

namespace pelorium {
namespace {

std::vector<double> Take(RandomSeries& random, int count) {
  std::vector<double> numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(random.Next());
  return numbers;
}

// The generator's first output from state 0 is 0xE220A8397B1DCDAF; the series takes its upper 53 bits.
TEST(RandomSeries, StartsAlikeAndRepeats) {
  RandomSeries one, two;
  EXPECT_EQ(one.Next(), static_cast<double>(0xE220A8397B1DCDAFU >> 11) / 9007199254740992.0);
  two.Next();
  EXPECT_EQ(Take(one, 10), Take(two, 10));
  one.Seed(3.5);
  const auto series = Take(one, 10);
  one.Seed(3.25);
  EXPECT_NE(Take(one, 10), series);
  one.Seed(3.5);
  EXPECT_EQ(Take(one, 10), series);
}

TEST(RandomSeries, AFixedSeedTakesTheClocksPlace) {
  RandomSeries random;
  random.SeedFromClock(1);
  const auto first = Take(random, 3);
  random.SeedFromClock(2);
  EXPECT_NE(Take(random, 3), first);
  random.FixClockSeed(7);
  const auto fixed = Take(random, 3);
  random.SeedFromClock(1);
  EXPECT_EQ(Take(random, 3), fixed);
}

TEST(Colour, Channels) {
  EXPECT_EQ(Rgb(1, 2, 3), 0x030201U);
  EXPECT_EQ(Red(0x030201), 1);
  EXPECT_EQ(Green(0x030201), 2);
  EXPECT_EQ(Blue(0x030201), 3);
  const std::pair<double, int> table[] = {{0, 0},       {-1, 0},      {0.5, 127},       {1, 255},
                                          {0.999, 254}, {7e300, 255}, {std::nan(""), 0}};
  for (const auto& [value, channel] : table) EXPECT_EQ(ScreenChannel(value), channel) << value;
}

}  // namespace
}  // namespace pelorium
