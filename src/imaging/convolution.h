// Filters that work each pixel out of its neighbours, channel by channel.
#pragma once

#include <cstdint>
#include <vector>

#include "imaging/image_strips.h"

namespace pelorium {

// The weights of the neighbours. Column i counts along a pixel row, row j upward, both from -half to half.
class FilterKernel {
 public:
  explicit FilterKernel(int size = 3) : size_(size), values_(static_cast<std::size_t>(size * size)) {}

  int size() const { return size_; }
  int half() const { return size_ / 2; }
  // A cell outside raises a Subscript fault.
  std::int32_t& At(int i, int j) { return values_[Index(i, j)]; }
  std::int32_t At(int i, int j) const { return values_[Index(i, j)]; }
  std::int64_t AbsoluteSum() const;

  std::int32_t weight = 0;  // the divisor

 private:
  std::size_t Index(int i, int j) const;

  int size_;
  std::vector<std::int32_t> values_;
};

// working := source's neighbourhood sums divided by the weight (towards zero), held in 0..255. A border of
// half the kernel stays as it is, so a surface smaller than the kernel stays whole. Both surfaces are of one
// size. A weight of 0 raises DivisionByZero, a sum past 32 bits Overflow.
void ApplyConvolution(const cDIBSection& source, cDIBSection& working, const FilterKernel& kernel,
                      const ImageEvents& events = {});

enum class Rank { Mean, Lowest, Highest };

// The same of the 3 x 3 pixels about each one. The mean is cut to a whole number.
void ApplyRankFilter(const cDIBSection& source, cDIBSection& working, Rank rank,
                     const ImageEvents& events = {});

}  // namespace pelorium
