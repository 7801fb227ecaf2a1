// Sums that fit 16 bits, which those of the menu do, take the vector unit's way.
#include "imaging/image_sums.h"

#include <array>
#include <cstdlib>
#include <cstring>
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
      FetchRowAhead(first, y, from);
      FetchRowAhead(second, y, from);
      body(first.Row(y) + from * kBytes, second.Row(y) + from * kBytes, (end - from) * kBytes);
    }
  });
}

// Sixteen bytes as eight pairs, whose lower and upper bytes are worked on apart.
using Pairs = std::uint16_t __attribute__((vector_size(16)));
using Shorts = std::int16_t __attribute__((vector_size(16)));
constexpr int kPairsBytes = 16;

// What one byte becomes: factors, constant, halving.
struct ShortSum {
  std::int16_t factor1, factor2;
  int halvings;

  Pairs operator()(Pairs first, Pairs second, Shorts add) const {
    const Shorts sum = ((Shorts)first * factor1 + (Shorts)second * factor2 + add) >> halvings;
    const Shorts lowest = {}, highest = lowest + 255;
    const Shorts positive = sum > lowest ? sum : lowest;
    return (Pairs)(positive < highest ? positive : highest);
  }
};

// The constants of a strip's bytes, those at even and those at odd places apart.
struct StripConstants {
  std::array<std::int16_t, kStripBytes / 2> even, odd;

  explicit StripConstants(const std::array<std::int64_t, kBytes>& constants) {
    for (std::size_t k = 0; k < even.size(); ++k) {
      even[k] = static_cast<std::int16_t>(constants[2 * k % kBytes]);
      odd[k] = static_cast<std::int16_t>(constants[(2 * k + 1) % kBytes]);
    }
  }
};

template <typename Vector>
Vector VectorAt(const void* from) {
  Vector vector;
  std::memcpy(&vector, from, sizeof vector);
  return vector;
}

void AddBlock(const ShortSum& sum, const StripConstants& add, int k, const std::uint8_t* first,
              std::uint8_t* second) {
  const auto a = VectorAt<Pairs>(first + k), b = VectorAt<Pairs>(second + k);
  const Pairs low = sum(a & 255, b & 255, VectorAt<Shorts>(add.even.data() + k / 2));
  const Pairs high = sum(a >> 8, b >> 8, VectorAt<Shorts>(add.odd.data() + k / 2));
  const Pairs both = low | high << 8;
  std::memcpy(second + k, &both, sizeof both);
}

void AddShort(const std::array<std::int64_t, kBytes>& constants, const ShortSum& sum,
              const cDIBSection& first, cDIBSection& second, const ImageEvents& events) {
  const StripConstants add(constants);
  ForCommonRows(events, first, second, [&](const std::uint8_t* from, std::uint8_t* to, int count) {
    int k = 0;
    for (; k + kPairsBytes <= count; k += kPairsBytes) AddBlock(sum, add, k, from, to);
    for (; k < count; ++k) {
      const auto constant = static_cast<int>(constants[static_cast<std::size_t>(k % kBytes)]);
      const int value = from[k] * sum.factor1 + to[k] * sum.factor2 + constant;
      to[k] = static_cast<std::uint8_t>(std::clamp(value >> sum.halvings, 0, 255));
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
    AddShort(constants, {firstTerm.factor, secondTerm.factor, halvings}, first, second, events);
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
