// The parser of fixed distances.
#include "interchange/obj_slash_faces.h"

#include <algorithm>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr std::size_t kFirstCorner = 1;  // from 0: the blank behind the "f"
constexpr std::size_t kMostToSlash = 7, kMostToBlank = 15;

// Sets `distance` to the first one from 1 to `most` at which `wanted` stands; none leaves it.
void Seek(std::string_view line, std::size_t start, char wanted, std::size_t most, std::size_t& distance) {
  for (std::size_t d = 1; d <= most && start + d < line.size(); ++d) {
    if (line[start + d] != wanted) continue;
    distance = d;
    return;
  }
}

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::int32_t Integer(std::string_view text) {
  const double number = WholeNumber(text);
  if (number != RoundHalfEven(number)) throw Fault(FaultKind::BadNumber, "\"" + std::string(text) + "\"");
  return ToInteger<std::int32_t>(number);
}

}  // namespace

SlashFaceParser::SlashFaceParser(const PickedLines& lines) : rest_(lines.text()), numbers_(lines.numbers()) {}

std::string_view SlashFaceParser::NextLine() {
  if (rest_.empty()) throw Fault(FaultKind::EndOfFile, "a face was expected");
  const std::string_view line = rest_.substr(0, rest_.find("\r\n"));
  rest_.remove_prefix(line.size() + 2);
  ++line_;
  return line;
}

std::int32_t SlashFaceParser::Corner(std::string_view line, std::size_t start) {
  Seek(line, start, '/', kMostToSlash, toSlash_);
  return Integer(Trimmed(line.substr(std::min(start, line.size()), toSlash_)));
}

void SlashFaceParser::Next(std::array<std::int32_t*, 3> corners) {
  const std::string_view line = NextLine();
  try {
    std::size_t start = kFirstCorner;
    for (std::int32_t* corner : corners) {
      *corner = Corner(line, start);
      Seek(line, start, ' ', kMostToBlank, toBlank_);
      start += toBlank_ + 1;
    }
  } catch (const Fault& fault) {
    throw fault.At(", line " + std::to_string(numbers_[line_ - 1]));
  }
}

}  // namespace pelorium
