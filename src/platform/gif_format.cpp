// .gif files: the first frame.
#include <algorithm>
#include <array>
#include <optional>

#include "platform/image_formats.h"

namespace pelorium {

namespace {

constexpr std::size_t kScreenHeader = 13, kFrameHeader = 10;
constexpr int kMaxCodes = 4096;
constexpr std::int64_t kPixelsPerByte = 2731;  // the longest string of a code of 12 bits

struct Frame {
  int left, top, width, height;
  bool interlaced;
  std::string_view palette;  // three bytes a colour
  std::optional<unsigned> transparent;
};

// The bytes of a colour table whose size is told by the low bits of `flags`; empty without one.
std::string_view PaletteAt(std::string_view bytes, std::size_t at, unsigned flags) {
  if ((flags & 0x80U) == 0) return {};
  return PartOf(bytes, at, std::size_t{3} << ((flags & 7U) + 1));
}

// The data of the blocks at `at`, which is moved behind them.
std::string Blocks(std::string_view bytes, std::size_t& at) {
  std::string data;
  while (const std::size_t count = ByteAt(bytes, at++)) {
    data += PartOf(bytes, at, count);
    at += count;
  }
  return data;
}

// Takes codes of growing width off the data, the lowest bits first; nothing at its end.
class CodeReader {
 public:
  explicit CodeReader(std::string_view data) : data_(data) {}

  std::optional<int> Next(int width) {
    while (held_ < width) {
      if (at_ >= data_.size()) return std::nullopt;
      bits_ |= static_cast<std::uint32_t>(static_cast<unsigned char>(data_[at_++])) << held_;
      held_ += 8;
    }
    const int code = static_cast<int>(bits_ & ((1U << width) - 1));
    bits_ >>= width;
    held_ -= width;
    return code;
  }

 private:
  std::string_view data_;
  std::size_t at_ = 0;
  std::uint32_t bits_ = 0;
  int held_ = 0;
};

// The strings that the codes stand for, each as a shorter one and its last number.
class CodeTable {
 public:
  explicit CodeTable(int rootBits) : clear_(1 << rootBits), rootBits_(rootBits) {
    for (int i = 0; i < clear_; ++i) last_[static_cast<std::size_t>(i)] = static_cast<unsigned char>(i);
    Clear();
  }

  void Clear() {
    next_ = clear_ + 2;
    width_ = rootBits_ + 1;
    previous_ = -1;
  }

  bool IsClear(int code) const { return code == clear_; }
  bool IsEnd(int code) const { return code == clear_ + 1; }
  int width() const { return width_; }

  // Adds the string of a code to the pixels, and the string that this makes known to the table.
  void Append(int code, std::string& pixels, std::size_t limit) {
    const std::size_t start = pixels.size();
    if (code > next_ || (code == next_ && previous_ < 0))
      RefusePicture("a .gif file with a code that is not known");
    const bool isNew = code == next_;
    for (int at = isNew ? previous_ : code;; at = shorter_[static_cast<std::size_t>(at)]) {
      pixels += static_cast<char>(last_[static_cast<std::size_t>(at)]);
      if (at < clear_) break;
    }
    std::reverse(pixels.begin() + static_cast<std::ptrdiff_t>(start), pixels.end());
    const char first = pixels[start];
    if (isNew) pixels += first;
    if (pixels.size() > limit) pixels.resize(limit);
    Learn(static_cast<unsigned char>(first));
    previous_ = code;
  }

 private:
  void Learn(unsigned char number) {
    if (previous_ < 0 || next_ >= kMaxCodes) return;
    shorter_[static_cast<std::size_t>(next_)] = static_cast<std::int16_t>(previous_);
    last_[static_cast<std::size_t>(next_)] = number;
    if (++next_ == 1 << width_ && width_ < 12) ++width_;
  }

  int clear_, rootBits_, next_ = 0, width_ = 0, previous_ = -1;
  std::array<std::int16_t, kMaxCodes> shorter_{};
  std::array<unsigned char, kMaxCodes> last_{};
};

std::string Unpacked(std::string_view data, int rootBits, std::size_t pixels) {
  if (rootBits < 2 || rootBits > 8) RefusePicture("a .gif file with pixels of a size that does not exist");
  CodeReader reader(data);
  CodeTable table(rootBits);
  std::string numbers;
  while (numbers.size() < pixels) {
    const std::optional<int> code = reader.Next(table.width());
    if (!code || table.IsEnd(*code)) RefusePicture("the picture file is cut short");
    table.IsClear(*code) ? table.Clear() : table.Append(*code, numbers, pixels);
  }
  return numbers;
}

// The row that is stored as number `stored`: of interlaced frames every eighth comes first.
int RowOf(int stored, const Frame& frame) {
  if (!frame.interlaced) return stored;
  constexpr int kPasses[][2] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
  for (const auto& [first, step] : kPasses) {
    const int rows = frame.height > first ? (frame.height - first + step - 1) / step : 0;
    if (stored < rows) return first + stored * step;
    stored -= rows;
  }
  return 0;
}

void PlaceFrame(const Frame& frame, std::string_view numbers, DecodedImage& image) {
  for (int stored = 0; stored < frame.height; ++stored) {
    const int y = frame.top + RowOf(stored, frame);
    for (int i = 0; i < frame.width; ++i) {
      const int x = frame.left + i;
      const std::size_t number = static_cast<unsigned char>(
          numbers[static_cast<std::size_t>(stored) * static_cast<std::size_t>(frame.width) +
                  static_cast<std::size_t>(i)]);
      if (x >= image.width || y >= image.height || number == frame.transparent) continue;
      const auto* colour = reinterpret_cast<const unsigned char*>(frame.palette.data()) + number * 3;
      const bool isKnown = number * 3 + 3 <= frame.palette.size();
      image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                   static_cast<std::size_t>(x)] = isKnown ? Rgb(colour[0], colour[1], colour[2]) : 0;
    }
  }
}

int Number16(std::string_view bytes, std::size_t at) { return static_cast<int>(Little16(bytes, at)); }

// Up to the first frame, whose data `at` is left at. Of the extensions only the transparent colour matters.
Frame FindFrame(std::string_view bytes, std::size_t& at, std::string_view palette) {
  std::optional<unsigned> transparent;
  while (ByteAt(bytes, at) == '!') {
    const bool isControl = ByteAt(bytes, at + 1) == 0xF9;
    at += 2;
    const std::string data = Blocks(bytes, at);
    if (isControl && data.size() >= 4 && (data[0] & 1) != 0)
      transparent = static_cast<unsigned char>(data[3]);
  }
  if (ByteAt(bytes, at) != ',') RefusePicture("a .gif file without a picture");
  const unsigned flags = ByteAt(bytes, at + 9);
  Frame frame{Number16(bytes, at + 1),
              Number16(bytes, at + 3),
              Number16(bytes, at + 5),
              Number16(bytes, at + 7),
              (flags & 0x40U) != 0,
              palette,
              transparent};
  const std::string_view own = PaletteAt(bytes, at + kFrameHeader, flags);
  if (!own.empty()) frame.palette = own;
  at += kFrameHeader + own.size();
  return frame;
}

}  // namespace

DecodedImage ReadGif(std::string_view bytes, Colour ground) {
  if (bytes.substr(0, 4) != "GIF8") RefusePicture("no .gif file");
  const std::string_view palette = PaletteAt(bytes, kScreenHeader, ByteAt(bytes, 10));
  std::size_t at = kScreenHeader + palette.size();
  const Frame frame = FindFrame(bytes, at, palette);
  const bool hasScreen = Little16(bytes, 6) != 0 && Little16(bytes, 8) != 0;
  const int width = hasScreen ? Number16(bytes, 6) : frame.width;
  const int height = hasScreen ? Number16(bytes, 8) : frame.height;
  CheckSidesAgainst(width, height, bytes.size(), kPixelsPerByte);
  CheckSidesAgainst(frame.width, frame.height, bytes.size(), kPixelsPerByte);
  const int rootBits = static_cast<int>(ByteAt(bytes, at++));
  const std::string data = Blocks(bytes, at);
  const std::size_t pixels = static_cast<std::size_t>(frame.width) * static_cast<std::size_t>(frame.height);
  const std::string numbers = Unpacked(data, rootBits, pixels);
  DecodedImage image{width, height, {}};
  image.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), ground);
  PlaceFrame(frame, numbers, image);
  return image;
}

}  // namespace pelorium
