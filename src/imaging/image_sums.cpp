// Sums that fit 16 bits, which those of the menu do, take the vector unit's way.
#include "imaging/image_sums.h"

#include <array>
#include <cstdlib>
#include <utility>

namespace pelorium {

namespace {

constexpr int kBytes = cDIBSection::kBytesPerPixel;

// What both terms add to a channel whatever the pixels are; blue, green, red as in the bytes.
std::array<std::int64_t, kBytes> Constants(const ImageTerm& first, const ImageTerm& second) {
  const auto constant = [&](std::int64_t add1, std::int64_t add2) {
    return add1 * first.factor + add2 * second.factor;
  };
  return {constant(first.blue, second.blue), constant(first.green, second.green),
          constant(first.red, second.red)};
}

// Calls `body(first, second, count)` for the common bytes of both surfaces, strip by strip.
template <typename Body>
void ForCommonRows(const ImageEvents& events, const cDIBSection& first, cDIBSection& second, Body&& body) {
  ForStrips(events, std::min(first.Width(), second.Width()), 0, [&](int from, int end) {
    for (int y = 0; y < std::min(first.Height(), second.Height()); ++y) {
      body(first.Row(y) + from * kBytes, second.Row(y) + from * kBytes, (end - from) * kBytes);
    }
  });
}

void AddShort(const std::array<std::int64_t, kBytes>& constants, std::int16_t factor1, std::int16_t factor2,
              int halvings, const cDIBSection& first, cDIBSection& second, const ImageEvents& events) {
  std::array<std::int16_t, kStripBytes> constant;
  for (std::size_t k = 0; k < constant.size(); ++k)
    constant[k] = static_cast<std::int16_t>(constants[k % kBytes]);
  const std::int16_t* __restrict add = constant.data();
  ForCommonRows(
      events, first, second,
      [&](const std::uint8_t* __restrict from, std::uint8_t* __restrict to, int count) {
        for (int k = 0; k < count; ++k) {
          const auto product1 = static_cast<std::int16_t>(from[k] * factor1);
          const auto product2 = static_cast<std::int16_t>(to[k] * factor2);
          const auto sum = static_cast<std::int16_t>(product1 + product2 + add[k]);
          const auto part =
              static_cast<std::int16_t>(sum >> halvings);  // below 0 is 0 in the end, however it is halved
          to[k] = static_cast<std::uint8_t>(std::min<std::int16_t>(std::max<std::int16_t>(part, 0), 255));
        }
      });
}

void AddWide(const std::array<std::int64_t, kBytes>& constants, std::int64_t factor1, std::int64_t factor2,
             int halvings, const cDIBSection& first, cDIBSection& second, const ImageEvents& events) {
  ForCommonRows(events, first, second, [&](const std::uint8_t* from, std::uint8_t* to, int count) {
    for (int k = 0; k < count; ++k) {
      const std::int64_t sum =
          from[k] * factor1 + to[k] * factor2 + constants[static_cast<std::size_t>(k % kBytes)];
      to[k] = static_cast<std::uint8_t>(std::clamp<std::int64_t>(sum >> halvings, 0, 255));
    }
  });
}

void Add(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
         const ImageTerm& secondTerm, int halvings, const ImageEvents& events) {
  const auto constants = Constants(firstTerm, secondTerm);
  std::int64_t largest = 0;
  for (const std::int64_t constant : constants)
    largest = std::max<std::int64_t>(largest, std::llabs(constant));
  largest += 255LL * (std::abs(firstTerm.factor) + std::abs(secondTerm.factor));
  if (largest <= INT16_MAX) {
    AddShort(constants, firstTerm.factor, secondTerm.factor, halvings, first, second, events);
  } else {
    AddWide(constants, firstTerm.factor, secondTerm.factor, halvings, first, second, events);
  }
}

// The second byte stands in twice and the red one never: pictures are told apart by it as they always were.
int Brightness(const std::uint8_t* pixel) { return pixel[1] * 707 + pixel[1] * 222 + pixel[0] * 71; }

template <typename Wins>
void Overlay(cDIBSection& target, const cDIBSection& first, const cDIBSection& second,
             const ImageEvents& events, Wins wins) {
  cDIBSection result = first;
  ForCommonRows(events, second, result, [&](const std::uint8_t* over, std::uint8_t* to, int count) {
    for (int k = 0; k < count; k += kBytes) {
      if (wins(Brightness(over + k), Brightness(to + k))) std::copy_n(over + k, kBytes, to + k);
    }
  });
  target = std::move(result);
}

}  // namespace

void AddImages(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
               const ImageTerm& secondTerm, const ImageEvents& events) {
  Add(first, second, firstTerm, secondTerm, 0, events);
}

void AddImages2(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                const ImageTerm& secondTerm, const ImageEvents& events) {
  Add(first, second, firstTerm, secondTerm, 1, events);
}

void AddLightest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second,
                 const ImageEvents& events) {
  Overlay(target, first, second, events, [](int over, int under) { return over > under; });
}

void AddDarkest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second,
                const ImageEvents& events) {
  Overlay(target, first, second, events, [](int over, int under) { return over < under; });
}

}  // namespace pelorium
