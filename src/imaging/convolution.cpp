// Sums of neighbourhoods. Sums that fit are kept in 16 bits, of which the vector unit takes eight at a time;
// the loops below are written so that the compiler makes use of it.
#include "imaging/convolution.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "base/fault.h"

namespace pelorium {

namespace {

constexpr int kBytes = cDIBSection::kBytesPerPixel;
constexpr int kLargestShortSum = 128 * 255;  // of a kernel whose weights sum up to 128

// A neighbour with a weight other than 0.
struct Cell {
  int i, j, value;
};

// In the order of the sums: along the row first.
std::vector<Cell> CellsOf(const FilterKernel& kernel) {
  std::vector<Cell> cells;
  for (int i = -kernel.half(); i <= kernel.half(); ++i) {
    for (int j = -kernel.half(); j <= kernel.half(); ++j) {
      if (kernel.At(i, j) != 0) cells.push_back({i, j, kernel.At(i, j)});
    }
  }
  return cells;
}

// Sixteen bytes as eight pairs: the sums of the lower and of the upper byte of each pair are kept apart,
// which saves the spreading of bytes to 16 bits.
using Pairs = std::uint16_t __attribute__((vector_size(16)));
using Shorts = std::int16_t __attribute__((vector_size(16)));
constexpr int kPairsBytes = 16, kBlockBytes = 2 * kPairsBytes;

// A neighbour of the first byte of a row's part, and its weight in every lane.
struct Neighbour {
  const std::uint8_t* bytes;
  Pairs value;
};

// Divides whole numbers below 2^15 by one of 1..2^15: the upper half of the product with 2^(16 + shift) /
// divisor, rounded up to a number of 16 bits, shifted. What that adds stays below the next quotient, since
// the rounding is less than the divisor, which is at most 2^(shift + 1), and the number less than 2^15.
struct Division {
  explicit Division(int number)
      : divisor(number),
        shift(std::max(static_cast<int>(std::bit_width(static_cast<unsigned>(number - 1))) - 1, 0)),
        multiplier(static_cast<std::uint16_t>(((1 << (16 + shift)) + number - 1) / number)) {}

  Pairs operator()(Pairs numbers) const {
    if (divisor == 1) return numbers;
    Pairs quotients = {};
    for (int i = 0; i < kPairsBytes / 2; ++i) {  // one instruction
      quotients[i] = static_cast<std::uint16_t>((std::uint32_t{numbers[i]} * multiplier) >> 16);
    }
    return quotients >> shift;
  }

  int divisor, shift;
  std::uint16_t multiplier;
};

// The quotients towards zero, held in 0..255.
inline Pairs Levels(Pairs wrapped, const Division& division) {
  const auto sums = (Shorts)wrapped, none = Shorts{}, highest = none + 255;
  const auto quotients = (Shorts)division((Pairs)(sums > none ? sums : none));
  return (Pairs)(quotients < highest ? quotients : highest);
}

// Both bytes of a pair weighed at once, and the upper one alone: the lower sums are the difference.
inline Pairs PairLevels(Pairs both, Pairs high, const Division& division) {
  return Levels(both - (high << 8), division) | Levels(high, division) << 8;
}

// A block of a row: the sums stay in the processor from the first neighbour to the quotients.
void ConvolveBlock(const std::vector<Neighbour>& neighbours, int at, const Division& division,
                   std::uint8_t* to) {
  Pairs both0 = {}, high0 = {}, both1 = {}, high1 = {};
  for (const Neighbour& neighbour : neighbours) {
    Pairs pairs0, pairs1;
    std::memcpy(&pairs0, neighbour.bytes + at, sizeof pairs0);
    std::memcpy(&pairs1, neighbour.bytes + at + kPairsBytes, sizeof pairs1);
    both0 += pairs0 * neighbour.value;
    high0 += (pairs0 >> 8) * neighbour.value;
    both1 += pairs1 * neighbour.value;
    high1 += (pairs1 >> 8) * neighbour.value;
  }
  const Pairs block[] = {PairLevels(both0, high0, division), PairLevels(both1, high1, division)};
  static_assert(sizeof block == kBlockBytes);
  std::memcpy(to + at, block, sizeof block);
}

// What is left over behind the last whole block is worked out in one that overlaps it.
void ConvolveRow(const std::vector<Neighbour>& neighbours, int count, const Division& division,
                 std::uint8_t* to) {
  int k = 0;
  for (; k + kBlockBytes <= count; k += kBlockBytes) ConvolveBlock(neighbours, k, division, to);
  if (k < count && count >= kBlockBytes) return ConvolveBlock(neighbours, count - kBlockBytes, division, to);
  for (; k < count; ++k) {
    int sum = 0;
    for (const Neighbour& neighbour : neighbours)
      sum += static_cast<std::int16_t>(neighbour.value[0]) * neighbour.bytes[k];
    to[k] = static_cast<std::uint8_t>(std::clamp(sum / division.divisor, 0, 255));
  }
}

// A negative weight turns the signs of both sides round; one beyond every sum makes all quotients 0. A row is
// written when it is whole: both surfaces often lie alike in their pages of memory, and the processor takes
// reads that stand so to a write right before them for reads of it.
void ConvolveShort(const cDIBSection& source, cDIBSection& working, const FilterKernel& kernel,
                   const ImageEvents& events) {
  const std::vector<Cell> cells = CellsOf(kernel);
  const Division division(
      static_cast<int>(std::clamp<std::int64_t>(std::llabs(kernel.weight), 1, kLargestShortSum + 1)));
  const int sign = kernel.weight < 0 ? -1 : 1;
  std::array<std::uint8_t, kStripBytes> row;
  std::vector<Neighbour> neighbours;
  for (const Cell& cell : cells) {
    neighbours.push_back({nullptr, Pairs{} + static_cast<std::uint16_t>(sign * cell.value)});
  }
  ForStrips(events, source.Width(), kernel.half(), [&](int first, int end) {
    for (int y = kernel.half(); y < source.Height() - kernel.half(); ++y) {
      FetchRowAhead(source, y + kernel.half(), first);
      FetchRowAhead(working, y, first);
      for (std::size_t c = 0; c < cells.size(); ++c) {
        neighbours[c].bytes = source.Row(y + cells[c].j) + (first + cells[c].i) * kBytes;
      }
      const int count = (end - first) * kBytes;
      ConvolveRow(neighbours, count, division, row.data());
      std::copy_n(row.data(), count, working.Row(y) + first * kBytes);
    }
  });
}

std::int64_t Held32(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    throw Fault(FaultKind::Overflow, "sum of a filter");
  }
  return value;
}

// Sums of any size, one byte at a time.
void ConvolveWide(const cDIBSection& source, cDIBSection& working, const FilterKernel& kernel,
                  const ImageEvents& events) {
  const std::vector<Cell> cells = CellsOf(kernel);
  ForStrips(events, source.Width(), kernel.half(), [&](int first, int end) {
    for (int y = kernel.half(); y < source.Height() - kernel.half(); ++y) {
      for (int k = first * kBytes; k < end * kBytes; ++k) {
        std::int64_t sum = 0;
        for (const Cell& cell : cells) {
          const std::int64_t byte = source.Row(y + cell.j)[k + cell.i * kBytes];
          sum = Held32(sum + Held32(byte * cell.value));
        }
        working.Row(y)[k] = static_cast<std::uint8_t>(std::clamp<std::int64_t>(sum / kernel.weight, 0, 255));
      }
    }
  });
}

// Of three rows, and then of each byte and its neighbours in the pixels beside it.
template <typename Choose>
void RankStrips(const cDIBSection& source, cDIBSection& working, const ImageEvents& events, Choose choose) {
  std::array<std::uint8_t, kStripBytes + 2 * kBytes> column;
  ForStrips(events, source.Width(), 1, [&](int first, int end) {
    const int start = (first - 1) * kBytes, count = (end - first) * kBytes;
    for (int y = 1; y < source.Height() - 1; ++y) {
      const std::uint8_t* __restrict below = source.Row(y - 1) + start;
      const std::uint8_t* __restrict at = source.Row(y) + start;
      const std::uint8_t* __restrict above = source.Row(y + 1) + start;
      std::uint8_t* __restrict rows = column.data();
      for (int k = 0; k < count + 2 * kBytes; ++k) rows[k] = choose(choose(below[k], at[k]), above[k]);
      std::uint8_t* __restrict to = working.Row(y) + first * kBytes;
      for (int k = 0; k < count; ++k) to[k] = choose(choose(rows[k], rows[k + kBytes]), rows[k + 2 * kBytes]);
    }
  });
}

}  // namespace

std::size_t FilterKernel::Index(int i, int j) const {
  if (std::abs(i) > half() || std::abs(j) > half()) throw Fault(FaultKind::Subscript, "cell of a filter");
  return static_cast<std::size_t>((i + half()) * size_ + j + half());
}

std::int64_t FilterKernel::AbsoluteSum() const {
  std::int64_t sum = 0;
  for (const std::int32_t value : values_) sum += std::llabs(value);
  return sum;
}

void ApplyConvolution(const cDIBSection& source, cDIBSection& working, const FilterKernel& kernel,
                      const ImageEvents& events) {
  const bool reachesAny = source.Width() > 2 * kernel.half() && source.Height() > 2 * kernel.half();
  if (kernel.weight == 0 && reachesAny) throw Fault(FaultKind::DivisionByZero, "weight of a filter");
  const bool isShort = kernel.AbsoluteSum() * 255 <= kLargestShortSum;
  (isShort ? ConvolveShort : ConvolveWide)(source, working, kernel, events);
}

void ApplyRankFilter(const cDIBSection& source, cDIBSection& working, Rank rank, const ImageEvents& events) {
  if (rank == Rank::Lowest) {
    RankStrips(source, working, events, [](std::uint8_t a, std::uint8_t b) { return std::min(a, b); });
  } else if (rank == Rank::Highest) {
    RankStrips(source, working, events, [](std::uint8_t a, std::uint8_t b) { return std::max(a, b); });
  } else {
    FilterKernel mean(3);
    for (int i = -1; i <= 1; ++i) {
      for (int j = -1; j <= 1; ++j) mean.At(i, j) = 1;
    }
    mean.weight = 9;
    ConvolveShort(source, working, mean, events);
  }
}

}  // namespace pelorium
