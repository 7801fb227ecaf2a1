// What the readers of picture files share: the image that they give, the bytes of a file, the sizes that are
// taken.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "base/fault.h"

namespace pelorium {

// Row by row from the top, 0x00BBGGRR.
struct DecodedImage {
  int width = 0, height = 0;
  std::vector<std::uint32_t> pixels;
};

inline constexpr std::int64_t kMaxFilePixels = 32LL << 20;

[[noreturn]] void RefusePicture(const char* why);

// Sides of 1..Picture::kMaxSide and at most kMaxFilePixels. The file must be long enough for them when a byte
// of it can tell `pixelsPerByte` pixels at most: no memory is taken for a header that lies.
void CheckSides(std::int64_t width, std::int64_t height);
void CheckSidesAgainst(std::int64_t width, std::int64_t height, std::size_t fileSize,
                       std::int64_t pixelsPerByte);

// What lies outside the file is refused.
std::uint32_t ByteAt(std::string_view bytes, std::size_t at);
std::uint32_t Little16(std::string_view bytes, std::size_t at);
std::uint32_t Little32(std::string_view bytes, std::size_t at);
std::uint32_t Big32(std::string_view bytes, std::size_t at);
std::string_view PartOf(std::string_view bytes, std::size_t at, std::size_t count);

}  // namespace pelorium
