// A picture or a surface that can go back: what its pixels were is remembered, and a change keeps the
// rectangle that differs.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace pelorium {

class Picture;
class cDIBSection;

// The other side of a change: what the pixels were before it, or after one that was undone.
struct ImagePatch {
  bool isWhole = false;            // another size: `pixels` is all of it
  int width = 0, height = 0;       // of that size, in pixels
  int top = 0, rows = 0;           // else the rows
  std::size_t left = 0, span = 0;  // and the bytes of each of them
  std::vector<std::uint8_t> pixels;

  bool isEmpty() const { return !isWhole && rows == 0; }
  std::size_t Bytes() const { return pixels.size(); }
};

// An image as rows of bytes.
class PixelStore {
 public:
  virtual ~PixelStore() = default;
  // Another number when the bytes may have changed.
  virtual std::uint64_t Revision() const = 0;
  virtual int Width() const = 0;  // pixels
  virtual int Height() const = 0;
  virtual std::size_t RowBytes() const = 0;
  // The pixel that it is all over, as long as that is known without a look.
  virtual std::optional<std::uint32_t> Plain() const = 0;
  virtual const std::uint8_t* Bytes() const = 0;
  virtual std::uint8_t* Edit() = 0;
  virtual void SetSize(int width, int height) = 0;
};

std::unique_ptr<PixelStore> StoreOf(Picture& picture);
std::unique_ptr<PixelStore> StoreOf(cDIBSection& surface);

class KeptImage {
 public:
  explicit KeptImage(std::unique_ptr<PixelStore> store) : store_(std::move(store)) {}

  // Starts with the present pixels.
  void Begin();
  // Whether pixels or the size are other ones than at the start or at the last call of one of those below.
  bool IsChanged();
  // What the pixels were; the present ones are the start from now on.
  ImagePatch TakeChanges();
  // Image and patch change sides; the image's new pixels are the start from now on.
  void Swap(ImagePatch& patch);

 private:
  bool HasSameSize() const;
  void Spread();
  void Remember();

  std::unique_ptr<PixelStore> store_;
  std::uint64_t revision_ = 0;
  int width_ = 0, height_ = 0;
  std::optional<std::uint32_t> plain_;  // in place of the bytes
  std::vector<std::uint8_t> bytes_;
};

}  // namespace pelorium
