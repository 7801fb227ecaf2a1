// The surface's bytes: creating, copying between it and pictures, noise, resampling, saving.
#include "imaging/dib_section.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "base/numbers.h"
#include "base/random_series.h"
#include "graphics/bgr_rows.h"
#include "imaging/numbered_fault.h"

namespace pelorium {

namespace {

constexpr int kFileHeader = 14, kInfoBlock = 44;  // the block is the 40-byte header and one unused colour

void AppendLittle(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::uint8_t NoiseByte(RandomSeries& random) {
  return static_cast<std::uint8_t>(RoundHalfEven(random.Next() * 255));
}

// What lies under both of two rectangles, as places in each of them.
struct Overlap {
  int fromX, fromY, toX, toY, width, height;

  Overlap(int fromLeft, int fromTop, int fromWidth, int fromHeight, int toLeft, int toTop, int toWidth,
          int toHeight, int copyWidth, int copyHeight) {
    const auto [x0, x1] = Range(fromLeft, fromWidth, toLeft, toWidth, copyWidth);
    const auto [y0, y1] = Range(fromTop, fromHeight, toTop, toHeight, copyHeight);
    fromX = static_cast<int>(fromLeft + x0), toX = static_cast<int>(toLeft + x0),
    width = static_cast<int>(x1 - x0);
    fromY = static_cast<int>(fromTop + y0), toY = static_cast<int>(toTop + y0),
    height = static_cast<int>(y1 - y0);
  }

 private:
  static std::pair<std::int64_t, std::int64_t> Range(std::int64_t from, std::int64_t fromSize,
                                                     std::int64_t to, std::int64_t toSize,
                                                     std::int64_t size) {
    const std::int64_t first = std::max({std::int64_t{0}, -from, -to});
    return {first, std::max(first, std::min({size, fromSize - from, toSize - to}))};
  }
};

// The file of a save, closed however the save ends.
class CreatedFile : public ByteSink {
 public:
  explicit CreatedFile(const std::filesystem::path& path) : file_(std::fopen(path.c_str(), "wb")) {
    if (!file_) {
      throw NumberedFault(FaultKind::FileError, cDIBSection::kCannotCreateFile, ".cDIBSection",
                          std::strerror(errno));
    }
  }
  void Write(std::string_view bytes) override {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
      throw Fault(FaultKind::FileError, std::strerror(errno));
    }
  }
  bool Close() { return std::fclose(file_.release()) == 0; }

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

// Where one target column or row takes its light from: two neighbours of the source and the second one's
// share.
struct Tap {
  int first, second;
  float share;
};

// The last pixel stands in for what would lie behind it: its share is 0 there.
std::vector<Tap> Taps(int source, int target) {
  const float scale = static_cast<float>(source - 1) / static_cast<float>(target);
  std::vector<Tap> taps;
  for (int i = 0; i < target; ++i) {
    const float at = static_cast<float>(i) * scale;
    const int first = static_cast<int>(at);
    taps.push_back({first, std::min(first + 1, source - 1), at - static_cast<float>(first)});
  }
  return taps;
}

float Between(float first, float second, float share) {
  return std::nearbyint((1 - share) * first + share * second);
}

}  // namespace

bool cDIBSection::Create(int width, int height) {
  const bool session = drawSession_;
  ClearUp();
  if (width < 1 || height < 1 || width > Picture::kMaxSide || height > Picture::kMaxSide) return false;
  if (static_cast<std::int64_t>(width) * height > kMaxPixels) return false;
  biWidth_ = width;
  biHeight_ = height;
  bits_.assign(RowStart(height), 0);
  revision_ = 0;
  drawSession_ = session;
  return true;
}

bool cDIBSection::CreateFromPicture(const Picture& picture) {
  if (!Create(picture.PixelWidth(), picture.PixelHeight())) return false;
  LoadPictureBlt(picture);
  return true;
}

void cDIBSection::ClearUp() {
  biWidth_ = biHeight_ = 0;
  bits_ = {};
  revision_ = 0;
  drawSession_ = false;
}

std::uint64_t cDIBSection::Revision() const {
  static std::uint64_t revisions = 0;
  if (revision_ == 0) revision_ = ++revisions;
  return revision_;
}

std::uint32_t cDIBSection::PixelAt(int x, int y) const {
  const std::uint8_t* bytes = Row(y) + static_cast<std::ptrdiff_t>(x) * kBytesPerPixel;
  return Rgb(bytes[2], bytes[1], bytes[0]);
}

void cDIBSection::LoadPictureBlt(const Picture& source, int left, int top, int width, int height) {
  const Overlap part(left, top, source.PixelWidth(), source.PixelHeight(), 0, 0, biWidth_, biHeight_,
                     width < 0 ? biWidth_ : width, height < 0 ? biHeight_ : height);
  const std::uint32_t* pixels = source.Pixels().data();
  for (int y = 0; y < part.height && part.width > 0; ++y) {
    const std::uint32_t* from =
        pixels + static_cast<std::ptrdiff_t>(part.fromY + y) * source.PixelWidth() + part.fromX;
    PixelsToBgr(from, part.width, Row(biHeight_ - 1 - part.toY - y) + part.toX * kBytesPerPixel);
  }
}

void cDIBSection::LoadPictureBlt(const cDIBSection& source) {
  if (source.biWidth_ == biWidth_ && source.biHeight_ == biHeight_) {
    bits_ = source.bits_;
    revision_ = 0;
    return;
  }
  const auto bytes = static_cast<std::size_t>(std::min(biWidth_, source.biWidth_)) * kBytesPerPixel;
  for (int y = 1; y <= std::min(biHeight_, source.biHeight_); ++y) {  // the upper edges meet
    std::copy_n(source.Row(source.biHeight_ - y), bytes, Row(biHeight_ - y));
  }
}

void cDIBSection::PaintPicture(Picture& target, int left, int top, int width, int height, int sourceLeft,
                               int sourceTop) const {
  const PixelGrid grid = target.Edit();
  const Overlap part(sourceLeft, sourceTop, biWidth_, biHeight_, left, top, grid.width, grid.height,
                     width < 0 ? biWidth_ : width, height < 0 ? biHeight_ : height);
  for (int y = 0; y < part.height && part.width > 0; ++y) {
    const std::uint8_t* from = Row(biHeight_ - 1 - part.fromY - y) + part.fromX * kBytesPerPixel;
    BgrToPixels(from, part.width, grid.At({part.toX, part.toY + y}));
  }
}

void cDIBSection::RandomiseBits(RandomSeries& random, bool gray) {
  if (gray) {
    for (int y = 0; y < biHeight_; ++y) {
      for (int x = 0; x < biWidth_; ++x)
        std::fill_n(Row(y) + x * kBytesPerPixel, kBytesPerPixel, NoiseByte(random));
    }
    return;
  }
  for (int x = 0; x < biWidth_; ++x) {
    for (int y = 0; y < biHeight_; ++y) {
      std::uint8_t* pixel = Row(y) + x * kBytesPerPixel;
      pixel[0] = 0;
      pixel[1] = NoiseByte(random);
      pixel[2] = NoiseByte(random);
    }
  }
}

std::optional<cDIBSection> cDIBSection::Resample(int newHeight, int newWidth) const {
  std::optional<cDIBSection> target(std::in_place);
  if (bits_.empty() || !target->Create(newWidth, newHeight)) return std::nullopt;
  if (newWidth == biWidth_ && newHeight == biHeight_) {
    target->LoadPictureBlt(*this);
  } else {
    ResampleDib(*target);
  }
  return target;
}

// Down the rows first and then across, rounded after each: the order decides the last level.
void cDIBSection::ResampleDib(cDIBSection& target) const {
  const std::vector<Tap> columns = Taps(biWidth_, target.biWidth_), rows = Taps(biHeight_, target.biHeight_);
  for (int y = 0; y < target.biHeight_; ++y) {
    const Tap& row = rows[static_cast<std::size_t>(y)];
    const std::uint8_t *upper = Row(row.first), *lower = Row(row.second);
    std::uint8_t* to = target.Row(y);
    for (const Tap& column : columns) {
      for (int channel = 0; channel < kBytesPerPixel; ++channel) {
        const int left = column.first * kBytesPerPixel + channel,
                  right = column.second * kBytesPerPixel + channel;
        const float value = Between(Between(upper[left], lower[left], row.share),
                                    Between(upper[right], lower[right], row.share), column.share);
        *to++ = static_cast<std::uint8_t>(std::clamp(value, 0.0F, 255.0F));
      }
    }
  }
}

bool cDIBSection::SavePicture(const std::filesystem::path& path) const {
  CreatedFile file(path);
  const bool written = SaveToBitmap(file);
  return file.Close() && written;
}

bool cDIBSection::SaveToBitmap(ByteSink& sink) const {
  const auto pixelBytes = static_cast<std::uint32_t>(bits_.size());
  std::string header = "BM", info;
  AppendLittle(header, pixelBytes + kFileHeader + kInfoBlock, 4);
  AppendLittle(header, 0, 4);
  AppendLittle(header, kFileHeader + kInfoBlock, 4);
  AppendLittle(info, 40, 4);
  AppendLittle(info, static_cast<std::uint32_t>(biWidth_), 4);
  AppendLittle(info, static_cast<std::uint32_t>(biHeight_), 4);
  AppendLittle(info, 1, 2);   // planes
  AppendLittle(info, 24, 2);  // bits a pixel
  AppendLittle(info, 0, 4);   // uncompressed
  AppendLittle(info, pixelBytes, 4);
  info.resize(kInfoBlock, '\0');
  try {
    sink.Write(header);
    sink.Write(info);
    sink.Write({reinterpret_cast<const char*>(bits_.data()), bits_.size()});
    return true;
  } catch (const Fault&) {
    return false;
  }
}

}  // namespace pelorium
