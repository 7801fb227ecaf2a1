// The filter processor: a kernel with its type, and the operations that the image maker runs on its two
// surfaces.
#pragma once

#include <cstdint>

#include "imaging/convolution.h"
#include "imaging/image_sums.h"
#include "imaging/noise_filters.h"
#include "imaging/tone_filters.h"

namespace pelorium {

enum ImageFilter : int {
  kBlur = 1,
  kBlurMore,
  kSoften,
  kSoftenMore,
  kSharpen,
  kSharpenMore,
  kUnsharpen,
  kEmboss,
  kMedian,  // a mean of nine, by its old name
  kMinimum,
  kMaximum,
  kNoFilter,  // accepted, does nothing
  kCustom,
};

class cImageProcessDIB {
 public:
  static constexpr std::uint32_t kEvenSize = 0x80040519, kBadFilter = 0x8004051A;  // numbers of its faults

  // 1 to 13, else NumberedFault kBadFilter. The types with a kernel of their own build it; 7, 9 to 12 and 13
  // leave the kernel that stands.
  void FilterType(int type);

  // 1, 3, 5, 7 or 9; the kernel is emptied. Others raise NumberedFault kEvenSize or kBadFilter.
  int FilterArraySize() const { return kernel_.size(); }
  void FilterArraySize(int size);

  // x along a pixel row, y up the rows, both from -half to half; outside a Subscript fault.
  std::int32_t FilterValue(int x, int y) const { return kernel_.At(x, y); }
  void FilterValue(int x, int y, std::int32_t value) { kernel_.At(x, y) = value; }

  std::int32_t FilterWeight() const { return kernel_.weight; }
  void FilterWeight(std::int32_t weight) { kernel_.weight = weight; }

  // Runs the current type on the source; `working` takes its size and is used up. A fault (a weight of 0)
  // leaves the source as it was. False for a type that does nothing.
  bool ProcessImage(cDIBSection& source, cDIBSection& working);

  void AddLightest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second) const;
  void AddDarkest(cDIBSection& target, const cDIBSection& first, const cDIBSection& second) const;
  void BlackAndWhite(cDIBSection& source, cDIBSection& working, const ValueRange& range) const;
  void GrayScale(cDIBSection& source, const ValueRange& range) const;
  void AddNoise(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random) const;
  void fade(cDIBSection& surface, int amount) const;
  void Lighten(cDIBSection& surface, int percent) const;
  void Colourise(cDIBSection& surface, float hue, float saturation) const;
  void GrayScale2(cDIBSection& source, const ValueRange& range) const;  // without the offset
  void AddImages(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                 const ImageTerm& secondTerm) const;
  void AddImages2(const cDIBSection& first, cDIBSection& second, const ImageTerm& firstTerm,
                  const ImageTerm& secondTerm) const;
  void AddNoise2(cDIBSection& surface, const NoiseSettings& settings, RandomSeries& random) const;

  ImageEvents events;

 private:
  void SetFilterKernel();

  int filterType_ = kNoFilter;
  FilterKernel kernel_{3};
};

}  // namespace pelorium
