// Free-format input.
#include "base/item_reader.h"

#include <algorithm>

#include "base/fault.h"
#include "base/line_reader.h"

namespace pelorium {

namespace {

constexpr char kEndOfText = 26;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
bool EndsItem(char c) { return IsBlank(c) || IsLineEnd(c) || c == ','; }

}  // namespace

ItemReader::ItemReader(std::string_view text, std::span<const std::int64_t> lineNumbers)
    : text_(WithoutByteOrderMark(text.substr(0, text.find(kEndOfText)))),
      rest_(text_),
      lineNumbers_(lineNumbers) {}

// The end of a line is its LF, or a CR that no LF follows.
Fault ItemReader::Place(const Fault& fault) {
  hasPlace_ = true;
  std::size_t line = 1;
  for (std::size_t i = 0; i < itemStart_; ++i) {
    const bool isPair = text_[i] == '\r' && i + 1 < text_.size() && text_[i + 1] == '\n';
    if (IsLineEnd(text_[i]) && !isPair) ++line;
  }
  std::int64_t number = static_cast<std::int64_t>(line);
  if (!lineNumbers_.empty()) number = lineNumbers_[std::min(line, lineNumbers_.size()) - 1];
  return fault.At(", line " + std::to_string(number));
}

double ItemReader::Number() {
  return Placed([this] { return NextNumber(); });
}

void ItemReader::SkipItem() {
  Placed([this] { return NextItem(); });
}

double ItemReader::NextNumber() {
  const std::string_view item = NextItem();
  return item.empty() ? 0 : WholeNumber(item);
}

std::string_view ItemReader::NextItem() {
  SkipBlanksAndLineEnds();
  itemStart_ = text_.size() - rest_.size();
  if (rest_.empty()) throw Fault(FaultKind::EndOfFile, "a number was expected");
  std::size_t length = 0;
  while (length < rest_.size() && !EndsItem(rest_[length])) ++length;
  const std::string_view item = rest_.substr(0, length);
  rest_.remove_prefix(length);
  SkipBlanks();
  if (!rest_.empty() && rest_.front() == ',') {
    rest_.remove_prefix(1);
  } else {
    SkipOneLineEnd();
  }
  return item;
}

std::string_view ItemReader::Line() {
  itemStart_ = text_.size() - rest_.size();
  return Placed([this] {
    if (rest_.empty()) throw Fault(FaultKind::EndOfFile, "a line was expected");
    const std::string_view line = rest_.substr(0, rest_.find_first_of("\r\n"));
    rest_.remove_prefix(line.size());
    SkipOneLineEnd();
    return line;
  });
}

bool ItemReader::AtEnd() {
  SkipBlanksAndLineEnds();
  return rest_.empty();
}

void ItemReader::SkipBlanks() {
  while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
}

void ItemReader::SkipBlanksAndLineEnds() {
  while (!rest_.empty() && (IsBlank(rest_.front()) || IsLineEnd(rest_.front()))) rest_.remove_prefix(1);
}

bool ItemReader::SkipOneLineEnd() {
  if (rest_.empty() || !IsLineEnd(rest_.front())) return false;
  const bool pair = rest_.substr(0, 2) == "\r\n";
  rest_.remove_prefix(pair ? 2 : 1);
  return true;
}

}  // namespace pelorium
