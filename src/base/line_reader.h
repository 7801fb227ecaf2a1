// Lines of a text of any size, one after another, read as a stream.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pelorium {

// Gives bytes. One that cannot raises FileError.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  // Up to `count` bytes; 0 at the end only.
  virtual std::size_t Read(char* bytes, std::size_t count) = 0;
};

class StringSource : public ByteSource {
 public:
  // `text` must outlive the source.
  explicit StringSource(std::string_view text) : rest_(text) {}
  std::size_t Read(char* bytes, std::size_t count) override;

 private:
  std::string_view rest_;
};

// The text without the mark that some programs write before everything else.
std::string_view WithoutByteOrderMark(std::string_view text);

// CR LF, LF and CR each end a line; a last line without an end counts. A byte order mark before the first
// line is dropped, all other bytes pass through. Of a line the first kMostKept bytes are kept, the rest is
// passed over, so that no file takes more memory than that.
class LineReader {
 public:
  static constexpr std::size_t kMostKept = 1 << 16;

  explicit LineReader(ByteSource& source, std::size_t bufferSize = 1 << 16);

  // False at the end of the text. The line lives until the next call.
  bool Next(std::string_view& line);

  // Of the line last given, from 1.
  std::int64_t number() const { return number_; }

 private:
  bool Fill();
  void Keep(std::string_view piece);
  std::string_view Finish(std::string_view lastPiece);

  ByteSource& source_;
  std::vector<char> buffer_;
  std::string_view ahead_;      // read and not yet given
  std::string kept_;            // the start of a line that crosses the end of the buffer
  bool isAfterReturn_ = false;  // an LF that comes next belongs to the CR before it
  std::int64_t number_ = 0;
};

}  // namespace pelorium
