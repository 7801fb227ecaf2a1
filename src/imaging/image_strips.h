// The walk of the filters over a surface: strips of some columns, row by row inside, which the cache and the
// vector unit like; the listener hears of every column in its order all the same.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

#include "imaging/dib_section.h"

namespace pelorium {

// What a long operation tells while it runs. Positions are byte columns: 3 a pixel.
struct ImageEvents {
  std::function<void(int highest)> InitProgress;
  std::function<void(int position)> Progress;
  std::function<void(double milliseconds)> Complete;
};

inline constexpr int kStripColumns = 64;
inline constexpr int kStripBytes = kStripColumns * cDIBSection::kBytesPerPixel;

// Runs `body(first, end)` for strips of the pixel columns half..width - 1 - half, and tells of each column.
template <typename Body>
void ForStrips(const ImageEvents& events, int width, int half, Body&& body) {
  constexpr int kBytes = cDIBSection::kBytesPerPixel;
  const auto start = std::chrono::steady_clock::now();
  if (events.InitProgress) events.InitProgress((width - 1) * kBytes - kBytes * half);
  for (int first = half; first < width - half; first += kStripColumns) {
    const int end = std::min(first + kStripColumns, width - half);
    body(first, end);
    if (!events.Progress) continue;
    for (int x = first; x < end; ++x) events.Progress(x * kBytes);
  }
  if (!events.Complete) return;
  events.Complete(
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
}

// The cache sees no order in the rows of a strip: those that come next are asked for some rows ahead.
inline void FetchRowAhead(const cDIBSection& surface, int y, int first) {
  constexpr int kRowsAhead = 4, kCacheLine = 64;
  const std::uint8_t* bytes =
      surface.Row(std::min(y + kRowsAhead, surface.Height() - 1)) + first * cDIBSection::kBytesPerPixel;
  for (int k = 0; k < kStripBytes; k += kCacheLine) __builtin_prefetch(bytes + k);
}

// The same, row by row: `body(bytes, count)` gets a row's part of the strip.
template <typename Body>
void ForStripRows(const ImageEvents& events, cDIBSection& surface, Body&& body) {
  ForStrips(events, surface.Width(), 0, [&](int first, int end) {
    for (int y = 0; y < surface.Height(); ++y) {
      FetchRowAhead(surface, y, first);
      body(surface.Row(y) + first * cDIBSection::kBytesPerPixel, (end - first) * cDIBSection::kBytesPerPixel);
    }
  });
}

}  // namespace pelorium
