// UTF-8.
#include "controls/utf8.h"

#include <algorithm>
#include <array>

namespace pelorium {

namespace {

constexpr char32_t kLast = 0x10FFFF, kReplacement = 0xFFFD;

bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

unsigned char ByteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

// The length of the character that the byte begins, 0 when it begins none.
std::size_t LengthFrom(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// The length of the character at `at`, in its shortest writing; 0 if there is none.
std::size_t Decode(std::string_view bytes, std::size_t at, char32_t& character) {
  static constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
  character = ByteAt(bytes, at);
  const std::size_t length = LengthFrom(ByteAt(bytes, at));
  if (length <= 1) return length;
  if (at + length > bytes.size()) return 0;
  character &= 0xFFu >> (length + 1);
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(bytes, at + i) & 0xC0) != 0x80) return 0;
    character = character << 6 | (ByteAt(bytes, at + i) & 0x3Fu);
  }
  return character < kLeast[length] || character > kLast || IsSurrogate(character) ? 0 : length;
}

}  // namespace

std::u32string FromUtf8(std::string_view bytes) {
  std::u32string characters;
  characters.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    char32_t character = 0;
    const std::size_t length = Decode(bytes, at, character);
    characters += length == 0 ? ByteAt(bytes, at) : character;
    at += std::max<std::size_t>(length, 1);
  }
  return characters;
}

void AppendUtf8(std::string& bytes, char32_t character) {
  if (character > kLast || IsSurrogate(character)) character = kReplacement;
  const auto tail = [character](int shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    bytes += static_cast<char>(character);
  } else if (character < 0x800) {
    bytes += static_cast<char>(0xC0 | character >> 6);
    bytes += tail(0);
  } else if (character < 0x10000) {
    bytes += static_cast<char>(0xE0 | character >> 12);
    (bytes += tail(6)) += tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | character >> 18);
    ((bytes += tail(12)) += tail(6)) += tail(0);
  }
}

}  // namespace pelorium
