// Lines from a stream.
#include "base/line_reader.h"

#include <algorithm>

namespace pelorium {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

}  // namespace

std::size_t StringSource::Read(char* bytes, std::size_t count) {
  const std::size_t given = rest_.copy(bytes, count);
  rest_.remove_prefix(given);
  return given;
}

std::string_view WithoutByteOrderMark(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  return text;
}

LineReader::LineReader(ByteSource& source, std::size_t bufferSize) : source_(source), buffer_(bufferSize) {}

bool LineReader::Fill() {
  ahead_ = {buffer_.data(), source_.Read(buffer_.data(), buffer_.size())};
  return !ahead_.empty();
}

void LineReader::Keep(std::string_view piece) { kept_ += piece.substr(0, kMostKept - kept_.size()); }

// Most lines lie in the buffer as a whole and are given from there.
std::string_view LineReader::Finish(std::string_view lastPiece) {
  std::string_view line = lastPiece.substr(0, kMostKept);
  if (!kept_.empty()) {
    Keep(lastPiece);
    line = kept_;
  }
  return ++number_ == 1 ? WithoutByteOrderMark(line) : line;
}

bool LineReader::Next(std::string_view& line) {
  kept_.clear();
  while (true) {
    if (ahead_.empty() && !Fill()) {
      if (kept_.empty()) return false;
      line = Finish({});
      return true;
    }
    if (isAfterReturn_) {
      isAfterReturn_ = false;
      if (ahead_.front() == '\n') ahead_.remove_prefix(1);
      continue;
    }
    const auto end = std::find_if(ahead_.begin(), ahead_.end(), IsLineEnd);
    const auto length = static_cast<std::size_t>(end - ahead_.begin());
    if (end == ahead_.end()) {
      Keep(ahead_);
      ahead_ = {};
      continue;
    }
    line = Finish(ahead_.substr(0, length));
    isAfterReturn_ = *end == '\r';
    ahead_.remove_prefix(length + 1);
    return true;
  }
}

}  // namespace pelorium
