// Lines of streams.
#include "base/line_reader.h"

#include "base/files.h"
#include "support/harness.h"

namespace pelorium {
namespace {

// "first|second|": each line with a bar behind it.
std::string Lines(std::string_view text, std::size_t bufferSize) {
  StringSource source(text);
  LineReader reader(source, bufferSize);
  std::string lines;
  for (std::string_view line; reader.Next(line);) (lines += line) += '|';
  return lines;
}

// With buffers so small that every line crosses their ends.
TEST(LineReader, EveryLineEnd) {
  const std::pair<std::string_view, std::string_view> table[] = {
      {"", ""},
      {"a", "a|"},
      {"a\n", "a|"},
      {"ab\r\ncd\nef\rgh\r\n", "ab|cd|ef|gh|"},
      {"\n\r\r\n\n\r", "|||||"},
      {"\xEF\xBB\xBFv 1\r\n\xEF\xBB\xBF", "v 1|\xEF\xBB\xBF|"},
      {std::string_view("a\0b\n\0", 5), std::string_view("a\0b|\0|", 6)},
  };
  for (const auto& [text, lines] : table) {
    for (const std::size_t size : {1, 2, 3, 5, 1 << 16}) EXPECT_EQ(Lines(text, size), lines) << size;
  }
}

TEST(LineReader, ALongLineIsCutAndCounted) {
  const std::string text = std::string(LineReader::kMostKept + 5, 'x') + "\r\nnext";
  for (const std::size_t size : {1000, 1 << 20}) {
    StringSource source(text);
    LineReader reader(source, size);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line.size(), LineReader::kMostKept);
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "next");
    EXPECT_EQ(reader.number(), 2);
  }
}

TEST(LineReader, AFolderIsNoFile) {
  const TemporaryFolder folder;
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] {
    FileSource source(folder.path());
    std::string_view line;
    LineReader(source).Next(line);
  }));
  WriteBytes(folder.path() / "x", "one\ntwo");
  EXPECT_EQ(ReadFile(folder.path() / "x", 5), "one\nt");
  EXPECT_EQ(ReadFile(folder.path() / "x"), "one\ntwo");
}

}  // namespace
}  // namespace pelorium
