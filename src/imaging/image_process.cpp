// The kernels of the filter types and what each type does with the surfaces.
#include "imaging/image_process.h"

#include <cstdlib>

#include "base/numbers.h"
#include "imaging/numbered_fault.h"

namespace pelorium {

namespace {

constexpr const char* kSource = ".cImageProcess";
constexpr int kLargestSize = 9;

// A kernel that is told by three values: its middle, the four cells beside it, all others.
struct PlainKernel {
  int type, size, centre, beside, others;
};

constexpr PlainKernel kPlainKernels[] = {
    {kBlur, 3, 1, 1, 1}, {kBlurMore, 5, 1, 1, 1}, {kSharpen, 3, 15, -1, -1}, {kSharpenMore, 3, 5, -1, 0}};

template <typename Value>
FilterKernel Filled(int size, Value value) {
  FilterKernel kernel(size);
  for (int x = -kernel.half(); x <= kernel.half(); ++x) {
    for (int y = -kernel.half(); y <= kernel.half(); ++y) {
      kernel.weight += kernel.At(x, y) = value(x, y);
    }
  }
  return kernel;
}

// Rings that weigh more the nearer they lie; the middle is half the number of cells.
FilterKernel RingKernel(int size) {
  return Filled(size, [size](int x, int y) {
    if (x == 0 && y == 0) return static_cast<int>(RoundHalfEven(size / 2.0 * size));
    return size / 2 - std::max(std::abs(x), std::abs(y)) + 1;
  });
}

// Light from one corner.
FilterKernel EmbossKernel() {
  FilterKernel kernel(3);
  kernel.At(-1, -1) = -1;
  kernel.At(1, 1) = 1;
  kernel.weight = 1;
  return kernel;
}

[[noreturn]] void Refuse(std::uint32_t number, const char* text) {
  throw NumberedFault(FaultKind::InvalidValue, number, kSource, text);
}

void GiveSizeOf(const cDIBSection& source, cDIBSection& working) {
  if (working.Width() != source.Width() || working.Height() != source.Height()) {
    working.Create(source.Width(), source.Height());
  }
}

}  // namespace

void cImageProcessDIB::FilterType(int type) {
  if (type < kBlur || type > kCustom) Refuse(kBadFilter, "Invalid filter types.");
  filterType_ = type;
  SetFilterKernel();
}

void cImageProcessDIB::SetFilterKernel() {
  if (filterType_ == kSoften) kernel_ = RingKernel(3);
  if (filterType_ == kSoftenMore) kernel_ = RingKernel(5);
  if (filterType_ == kEmboss) kernel_ = EmbossKernel();
  for (const PlainKernel& plain : kPlainKernels) {
    if (plain.type != filterType_) continue;
    kernel_ = Filled(plain.size, [&plain](int x, int y) {
      const int away = std::abs(x) + std::abs(y);
      return away == 0 ? plain.centre : away == 1 ? plain.beside : plain.others;
    });
  }
}

void cImageProcessDIB::FilterArraySize(int size) {
  if (size < 0) Refuse(kBadFilter, "Invalid size.  Size should be an odd number from 3 to 9");
  if (size % 2 == 0) Refuse(kEvenSize, "Size must be an odd number");
  if (size > kLargestSize) Refuse(kBadFilter, "Invalid size.  Size should be an odd number from 3 to 9");
  const std::int32_t weight = kernel_.weight;
  kernel_ = FilterKernel(size);
  kernel_.weight = weight;
}

bool cImageProcessDIB::ProcessImage(cDIBSection& source, cDIBSection& working) {
  const int type = filterType_;
  if (type == kNoFilter) return false;
  GiveSizeOf(source, working);
  working.LoadPictureBlt(source);
  if (type >= kMedian && type <= kMaximum) {
    constexpr Rank kRanks[] = {Rank::Mean, Rank::Lowest, Rank::Highest};
    ApplyRankFilter(source, working, kRanks[type - kMedian], events);
    source.LoadPictureBlt(working);
    return true;
  }
  if (type == kUnsharpen) FilterType(kBlur);  // whose kernel stays behind
  filterType_ = type;
  ApplyConvolution(source, working, kernel_, events);
  if (type == kUnsharpen) {
    AddImages(working, source, {-1, 0, 0, 0}, {2, 0, 0, 0});  // what the blur took away, once more
  } else if (type == kEmboss) {
    AddImages(working, source, {1, 127, 127, 127}, {0, 0, 0, 0});
  } else {
    source.LoadPictureBlt(working);
  }
  return true;
}

void cImageProcessDIB::AddLightest(cDIBSection& target, const cDIBSection& first,
                                   const cDIBSection& second) const {
  pelorium::AddLightest(target, first, second, events);
}

void cImageProcessDIB::AddDarkest(cDIBSection& target, const cDIBSection& first,
                                  const cDIBSection& second) const {
  pelorium::AddDarkest(target, first, second, events);
}

void cImageProcessDIB::BlackAndWhite(cDIBSection& source, cDIBSection& working,
                                     const ValueRange& range) const {
  GiveSizeOf(source, working);
  pelorium::BlackAndWhite(source, working, range, events);
}

void cImageProcessDIB::GrayScale(cDIBSection& source, const ValueRange& range) const {
  pelorium::GrayScale(source, range, events);
}

void cImageProcessDIB::AddNoise(cDIBSection& surface, const NoiseSettings& settings,
                                RandomSeries& random) const {
  pelorium::AddNoise(surface, settings, random, events);
}

void cImageProcessDIB::fade(cDIBSection& surface, int amount) const { Fade(surface, amount, events); }

void cImageProcessDIB::Lighten(cDIBSection& surface, int percent) const {
  pelorium::Lighten(surface, percent, events);
}

void cImageProcessDIB::Colourise(cDIBSection& surface, float hue, float saturation) const {
  pelorium::Colourise(surface, hue, saturation, events);
}

void cImageProcessDIB::GrayScale2(cDIBSection& source, const ValueRange& range) const {
  pelorium::GrayScale(source, {range.low, range.high, 0}, events);
}

void cImageProcessDIB::AddImages(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                                 const ImageTerm& secondTerm) const {
  pelorium::AddImages(first, second, firstTerm, secondTerm, events);
}

void cImageProcessDIB::AddImages2(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                                  const ImageTerm& secondTerm) const {
  pelorium::AddImages2(first, second, firstTerm, secondTerm, events);
}

void cImageProcessDIB::AddNoise2(cDIBSection& surface, const NoiseSettings& settings,
                                 RandomSeries& random) const {
  pelorium::AddNoise2(surface, settings, random, events);
}

}  // namespace pelorium
