// The off-screen raster of the filters: 24 bits a pixel, rows from the bottom up, each filled up to whole
// groups of four bytes. Filters run over its bytes without asking a picture for each pixel.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "base/text_writer.h"
#include "graphics/picture.h"

namespace pelorium {

class RandomSeries;

class cDIBSection {
 public:
  static constexpr int kBytesPerPixel = 3;                // blue, green, red
  static constexpr std::int64_t kMaxPixels = 64LL << 20;  // of one surface
  static constexpr std::uint32_t kCannotCreateFile = 17;  // the number of SavePicture's fault

  // A surface of these sides, black; false, and an empty surface, when a side is outside 1..Picture::kMaxSide
  // or the pixels are more than kMaxPixels.
  bool Create(int width, int height);
  bool CreateFromPicture(const Picture& picture);
  void ClearUp();

  // A session for quicker showing. It stays open once it was opened, until ClearUp.
  bool UseDrawDib() const { return drawSession_; }
  void UseDrawDib(bool use) { drawSession_ = drawSession_ || use; }

  int Width() const { return biWidth_; }
  int Height() const { return biHeight_; }
  int BytesPerScanLine() const { return (biWidth_ * kBytesPerPixel + 3) & ~3; }

  // Row `y` counts from the bottom; pixel x of it has the bytes 3x, 3x + 1, 3x + 2.
  std::uint8_t* DIBSectionBitsPtr() {
    revision_ = 0;
    return bits_.data();
  }
  const std::uint8_t* DIBSectionBitsPtr() const { return bits_.data(); }
  std::uint8_t* Row(int y) {
    revision_ = 0;
    return bits_.data() + RowStart(y);
  }
  const std::uint8_t* Row(int y) const { return bits_.data() + RowStart(y); }
  std::uint32_t PixelAt(int x, int y) const;  // 0x00BBGGRR, y from the bottom

  // Another number when the surface may have been written since it was last asked for. Surfaces of the same
  // number hold the same bytes.
  std::uint64_t Revision() const;

  // Copies what lies under both from the source, whose place (left, top) comes to the surface's upper left
  // corner. A negative width or height means the surface's own.
  void LoadPictureBlt(const Picture& source, int left = 0, int top = 0, int width = -1, int height = -1);
  void LoadPictureBlt(const cDIBSection& source);

  // Copies onto the target at (left, top) from the surface's place (sourceLeft, sourceTop); overlap only.
  void PaintPicture(Picture& target, int left = 0, int top = 0, int width = -1, int height = -1,
                    int sourceLeft = 0, int sourceTop = 0) const;

  // Noise from the series: two channels of each pixel, or one gray for all three.
  void RandomiseBits(RandomSeries& random, bool gray);

  // A new surface of that size, bilinear between the far edges; at the same size an exact copy. Nothing when
  // the size cannot be created.
  std::optional<cDIBSection> Resample(int newHeight, int newWidth) const;

  // A .bmp file with 58 bytes before the pixels. A file that cannot be created raises NumberedFault 17; false
  // when a write fails on the way.
  bool SavePicture(const std::filesystem::path& path) const;
  // Its three writes: 14 bytes, 44 bytes, the pixels. The first that fails is the last.
  bool SaveToBitmap(ByteSink& sink) const;

 private:
  std::size_t RowStart(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(BytesPerScanLine());
  }
  void ResampleDib(cDIBSection& target) const;

  std::int32_t biWidth_ = 0, biHeight_ = 0;
  std::vector<std::uint8_t> bits_;
  bool drawSession_ = false;
  mutable std::uint64_t revision_ = 0;  // 0: written since it was asked for
};

}  // namespace pelorium
