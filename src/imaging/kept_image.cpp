// Remembering pixels and finding the rectangle that differs.
#include "imaging/kept_image.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "graphics/picture.h"
#include "imaging/dib_section.h"

namespace pelorium {

namespace {

class StoreOfPicture : public PixelStore {
 public:
  explicit StoreOfPicture(Picture& picture) : picture_(picture) {}
  std::uint64_t Revision() const override { return picture_.Revision(); }
  int Width() const override { return picture_.PixelWidth(); }
  int Height() const override { return picture_.PixelHeight(); }
  std::size_t RowBytes() const override { return static_cast<std::size_t>(Width()) * sizeof(std::uint32_t); }
  std::optional<std::uint32_t> Plain() const override { return picture_.PlainColour(); }
  const std::uint8_t* Bytes() const override {
    return reinterpret_cast<const std::uint8_t*>(picture_.Pixels().data());
  }
  std::uint8_t* Edit() override { return reinterpret_cast<std::uint8_t*>(picture_.Edit().pixels); }
  void SetSize(int width, int height) override { picture_.Resize(width, height); }

 private:
  Picture& picture_;
};

class StoreOfSurface : public PixelStore {
 public:
  explicit StoreOfSurface(cDIBSection& surface) : surface_(surface) {}
  std::uint64_t Revision() const override { return surface_.Revision(); }
  int Width() const override { return surface_.Width(); }
  int Height() const override { return surface_.Height(); }
  std::size_t RowBytes() const override { return static_cast<std::size_t>(surface_.BytesPerScanLine()); }
  std::optional<std::uint32_t> Plain() const override { return std::nullopt; }
  const std::uint8_t* Bytes() const override { return std::as_const(surface_).DIBSectionBitsPtr(); }
  std::uint8_t* Edit() override { return surface_.DIBSectionBitsPtr(); }
  void SetSize(int width, int height) override {
    if (width == 0) {
      surface_.ClearUp();
    } else {
      surface_.Create(width, height);
    }
  }

 private:
  cDIBSection& surface_;
};

// The rows that differ, and of each of them the bytes from the first one to the last one that differs in any.
ImagePatch Difference(const std::uint8_t* a, const std::uint8_t* b, std::size_t rowBytes, int rows) {
  ImagePatch found;
  std::size_t left = rowBytes, right = 0;
  for (int y = 0; y < rows; ++y, a += rowBytes, b += rowBytes) {
    if (std::memcmp(a, b, rowBytes) == 0) continue;
    if (found.rows == 0) found.top = y;
    found.rows = y - found.top + 1;
    left = static_cast<std::size_t>(std::mismatch(a, a + left, b).first - a);
    std::size_t end = rowBytes;
    while (end > right && a[end - 1] == b[end - 1]) --end;
    right = end;
  }
  found.left = left;
  found.span = found.rows == 0 ? 0 : right - left;
  return found;
}

}  // namespace

std::unique_ptr<PixelStore> StoreOf(Picture& picture) { return std::make_unique<StoreOfPicture>(picture); }
std::unique_ptr<PixelStore> StoreOf(cDIBSection& surface) {
  return std::make_unique<StoreOfSurface>(surface);
}

void KeptImage::Begin() {
  plain_ = store_->Plain();
  Remember();
}

// All that the image is now, but bytes that are all alike.
void KeptImage::Remember() {
  revision_ = store_->Revision();
  width_ = store_->Width();
  height_ = store_->Height();
  bytes_.clear();
  if (plain_) return bytes_.shrink_to_fit();
  const std::uint8_t* bytes = store_->Bytes();
  bytes_.assign(bytes, bytes + store_->RowBytes() * static_cast<std::size_t>(height_));
}

// Writes the one pixel out.
void KeptImage::Spread() {
  if (!plain_) return;
  const std::uint32_t pixel = *std::exchange(plain_, std::nullopt);
  bytes_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) * sizeof pixel);
  for (std::size_t at = 0; at < bytes_.size(); at += sizeof pixel)
    std::memcpy(&bytes_[at], &pixel, sizeof pixel);
}

bool KeptImage::HasSameSize() const { return store_->Width() == width_ && store_->Height() == height_; }

bool KeptImage::IsChanged() {
  if (store_->Revision() == revision_) return false;
  if (!HasSameSize()) return true;
  if (plain_ && store_->Plain() == plain_) return false;
  Spread();
  return std::memcmp(bytes_.data(), store_->Bytes(), bytes_.size()) != 0;
}

ImagePatch KeptImage::TakeChanges() {
  if (store_->Revision() == revision_) return {};
  ImagePatch patch;
  if (!HasSameSize()) {
    Spread();
    patch = {.isWhole = true, .width = width_, .height = height_, .pixels = std::move(bytes_)};
    Begin();
    return patch;
  }
  if (plain_ && store_->Plain() == plain_) {
    revision_ = store_->Revision();
    return {};
  }
  Spread();
  const std::size_t rowBytes = store_->RowBytes();
  if (bytes_.size() != rowBytes * static_cast<std::size_t>(height_)) {  // there was no memory for them
    Begin();
    return patch;
  }
  const std::uint8_t* now = store_->Bytes();
  revision_ = store_->Revision();
  patch = Difference(bytes_.data(), now, rowBytes, height_);
  patch.pixels.reserve(patch.span * static_cast<std::size_t>(patch.rows));
  for (int y = patch.top; y < patch.top + patch.rows; ++y) {
    const std::size_t at = static_cast<std::size_t>(y) * rowBytes + patch.left;
    patch.pixels.insert(patch.pixels.end(), &bytes_[at], &bytes_[at] + patch.span);
    std::memcpy(&bytes_[at], now + at, patch.span);
  }
  return patch;
}

void KeptImage::Swap(ImagePatch& patch) {
  if (patch.isEmpty()) return;
  Spread();
  if (patch.isWhole) {
    ImagePatch other{.isWhole = true, .width = width_, .height = height_, .pixels = std::move(bytes_)};
    store_->SetSize(patch.width, patch.height);
    if (!patch.pixels.empty()) std::memcpy(store_->Edit(), patch.pixels.data(), patch.pixels.size());
    plain_.reset();
    Remember();
    patch = std::move(other);
    return;
  }
  std::uint8_t* now = store_->Edit();
  std::uint8_t* other = patch.pixels.data();
  for (int y = patch.top; y < patch.top + patch.rows; ++y, other += patch.span) {
    const std::size_t at = static_cast<std::size_t>(y) * store_->RowBytes() + patch.left;
    std::swap_ranges(now + at, now + at + patch.span, other);
    std::memcpy(&bytes_[at], now + at, patch.span);
  }
  revision_ = store_->Revision();
}

}  // namespace pelorium
