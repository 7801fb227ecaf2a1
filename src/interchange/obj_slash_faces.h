// Corners such as "12/5/7" in face lines of OBJ files, found by fixed distances.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "interchange/picked_lines.h"

namespace pelorium {

// More of a face line than its three corners can reach.
inline constexpr std::size_t kLongestSlashLine = 1000;

// A corner's first number ends at a "/" at most 7 characters behind the corner's start, and the corner at a
// blank at most 15 behind it; the next corner starts one past that blank. The first corner starts on the
// blank behind the "f", so that a second blank there shifts the corners by one. A search that finds nothing
// keeps the distance of the search before it, over all lines of a file.
class SlashFaceParser {
 public:
  explicit SlashFaceParser(const PickedLines& lines);

  // The point numbers of the next line. A text that is no whole number ends in a fault with the line, and so
  // do lines that are no more there.
  void Next(std::array<std::int32_t*, 3> corners);

 private:
  std::string_view NextLine();
  std::int32_t Corner(std::string_view line, std::size_t start);

  std::string_view rest_;
  const std::vector<std::int64_t>& numbers_;
  std::size_t line_ = 0;  // of those kept, from 1
  std::size_t toSlash_ = 0, toBlank_ = 0;
};

}  // namespace pelorium
