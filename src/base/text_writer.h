// Writes text for files: numbers in the system's forms, lines that end in CR LF, into a sink that may fail.
#pragma once

#include <string>
#include <string_view>

namespace pelorium {

// Takes bytes. A sink that cannot take them raises FileError.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void Write(std::string_view bytes) = 0;
};

class StringSink : public ByteSink {
 public:
  void Write(std::string_view bytes) override { text_ += bytes; }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// Collects a line's items and hands full buffers to the sink. Call Flush at the end: the destructor writes nothing,
// so that an abandoned file is not taken for a finished one.
class TextWriter {
 public:
  explicit TextWriter(ByteSink& sink);

  TextWriter& Text(std::string_view text);
  TextWriter& General(double value);                // general form
  TextWriter& Rounded(double value, int decimals);  // rounded half to even, then general form
  TextWriter& Integer(long long value);
  TextWriter& Print(double value);  // print form, with its blanks
  void EndLine();

  // One whole line.
  void Line(std::string_view text) { Text(text).EndLine(); }

  void Flush();

 private:
  ByteSink& sink_;
  std::string buffer_;
};

}  // namespace pelorium
