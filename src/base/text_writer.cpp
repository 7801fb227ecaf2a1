// Buffered text output.
#include "base/text_writer.h"

#include <charconv>

#include "base/numbers.h"

namespace pelorium {

namespace {
constexpr std::size_t kBufferSize = 1 << 16;
}

TextWriter::TextWriter(ByteSink& sink) : sink_(sink) { buffer_.reserve(kBufferSize + 512); }

TextWriter& TextWriter::Text(std::string_view text) {
  buffer_ += text;
  return *this;
}

TextWriter& TextWriter::General(double value) {
  AppendGeneralForm(buffer_, value);
  return *this;
}

TextWriter& TextWriter::Rounded(double value, int decimals) {
  AppendRoundedForm(buffer_, value, decimals);
  return *this;
}

TextWriter& TextWriter::Integer(long long value) {
  char digits[24];
  buffer_.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  return *this;
}

TextWriter& TextWriter::Print(double value) {
  if (!(value < 0)) buffer_ += ' ';
  AppendGeneralForm(buffer_, value);
  buffer_ += ' ';
  return *this;
}

void TextWriter::EndLine() {
  buffer_ += "\r\n";
  if (buffer_.size() >= kBufferSize) Flush();
}

void TextWriter::Flush() {
  sink_.Write(buffer_);
  buffer_.clear();
}

}  // namespace pelorium
