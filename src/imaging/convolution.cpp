// Sums of neighbourhoods. Sums that fit are kept in 16 bits, of which the vector unit takes eight at a time;
// the loops below are written so that the compiler makes use of it.
#include "imaging/convolution.h"

#include <array>
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
using Ints = std::int32_t __attribute__((vector_size(16)));
using Reals = float __attribute__((vector_size(16)));
constexpr int kPairsBytes = 16, kBlockBytes = 2 * kPairsBytes;

// A neighbour of the first byte of a row's part, and its weight.
struct Neighbour {
  const std::uint8_t* bytes;
  std::uint16_t value;
};

// Four whole numbers of 0..32640, two to the lane, divided. Half a unit more and the product with the
// reciprocal falls on the right side of every whole number: the sums have 15 bits, a float has 24.
inline Ints Quotients(Ints sums, float reciprocal) {
  return __builtin_convertvector((__builtin_convertvector(sums, Reals) + 0.5F) * reciprocal, Ints);
}

// The quotients towards zero, held in 0..255.
inline Pairs Levels(Pairs wrapped, float reciprocal) {
  auto sums = (Shorts)wrapped;
  sums = sums > 0 ? sums : Shorts{};
  if (reciprocal != 1) {
    const auto lanes = (Ints)sums;
    const Ints quotients = Quotients(lanes & 0xFFFF, reciprocal) | Quotients(lanes >> 16, reciprocal) << 16;
    sums = (Shorts)quotients;
  }
  const Shorts highest = Shorts{} + 255, held = sums < highest ? sums : highest;
  return (Pairs)held;
}

// A block of a row: the sums stay in the processor from the first neighbour to the quotients.
void ConvolveBlock(const std::vector<Neighbour>& neighbours, int at, float reciprocal, std::uint8_t* to) {
  Pairs low0 = {}, high0 = {}, low1 = {}, high1 = {};
  for (const Neighbour& neighbour : neighbours) {
    Pairs pairs[2];
    std::memcpy(pairs, neighbour.bytes + at, sizeof pairs);
    low0 += (pairs[0] & 255) * neighbour.value;
    high0 += (pairs[0] >> 8) * neighbour.value;
    low1 += (pairs[1] & 255) * neighbour.value;
    high1 += (pairs[1] >> 8) * neighbour.value;
  }
  const Pairs block[] = {Levels(low0, reciprocal) | Levels(high0, reciprocal) << 8,
                         Levels(low1, reciprocal) | Levels(high1, reciprocal) << 8};
  static_assert(sizeof block == kBlockBytes);
  std::memcpy(to + at, block, sizeof block);
}

// What is left over behind the last whole block is worked out in one that overlaps it.
void ConvolveRow(const std::vector<Neighbour>& neighbours, int count, int divisor, std::uint8_t* to) {
  const float reciprocal = 1 / static_cast<float>(divisor);
  int k = 0;
  for (; k + kBlockBytes <= count; k += kBlockBytes) ConvolveBlock(neighbours, k, reciprocal, to);
  if (k < count && count >= kBlockBytes)
    return ConvolveBlock(neighbours, count - kBlockBytes, reciprocal, to);
  for (; k < count; ++k) {
    int sum = 0;
    for (const Neighbour& neighbour : neighbours)
      sum += static_cast<std::int16_t>(neighbour.value) * neighbour.bytes[k];
    to[k] = static_cast<std::uint8_t>(std::clamp(sum / divisor, 0, 255));
  }
}

// A negative weight turns the signs of both sides round; one beyond every sum makes all quotients 0.
void ConvolveShort(const cDIBSection& source, cDIBSection& working, const FilterKernel& kernel,
                   const ImageEvents& events) {
  const std::vector<Cell> cells = CellsOf(kernel);
  const std::int64_t divisor = std::min<std::int64_t>(std::llabs(kernel.weight), kLargestShortSum + 1);
  const int sign = kernel.weight < 0 ? -1 : 1;
  std::vector<Neighbour> neighbours(cells.size());
  ForStrips(events, source.Width(), kernel.half(), [&](int first, int end) {
    for (int y = kernel.half(); y < source.Height() - kernel.half(); ++y) {
      for (std::size_t c = 0; c < cells.size(); ++c) {
        neighbours[c] = {source.Row(y + cells[c].j) + (first + cells[c].i) * kBytes,
                         static_cast<std::uint16_t>(sign * cells[c].value)};
      }
      ConvolveRow(neighbours, (end - first) * kBytes, static_cast<int>(divisor),
                  working.Row(y) + first * kBytes);
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
