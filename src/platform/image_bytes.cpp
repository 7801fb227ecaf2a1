// Bounded reads.
#include "platform/image_bytes.h"

#include "graphics/picture.h"

namespace pelorium {

void RefusePicture(const char* why) { throw Fault(FaultKind::FileError, why); }

void CheckSides(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1 || width > Picture::kMaxSide || height > Picture::kMaxSide) {
    RefusePicture("a picture's side is outside 1 to 32767 pixels");
  }
  if (width * height > kMaxFilePixels) RefusePicture("a picture of more than 32 million pixels");
}

void CheckSidesAgainst(std::int64_t width, std::int64_t height, std::size_t fileSize,
                       std::int64_t pixelsPerByte) {
  CheckSides(width, height);
  if (width * height / pixelsPerByte > static_cast<std::int64_t>(fileSize)) {
    RefusePicture("the picture file is too short for its size");
  }
}

std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
  if (at >= bytes.size()) RefusePicture("the picture file is cut short");
  return static_cast<unsigned char>(bytes[at]);
}

std::uint32_t Little16(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8;
}

std::uint32_t Little32(std::string_view bytes, std::size_t at) {
  return Little16(bytes, at) | Little16(bytes, at + 2) << 16;
}

std::uint32_t Big32(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) << 24 | ByteAt(bytes, at + 1) << 16 | ByteAt(bytes, at + 2) << 8 |
         ByteAt(bytes, at + 3);
}

std::string_view PartOf(std::string_view bytes, std::size_t at, std::size_t count) {
  if (at > bytes.size() || count > bytes.size() - at) RefusePicture("the picture file is cut short");
  return bytes.substr(at, count);
}

}  // namespace pelorium
