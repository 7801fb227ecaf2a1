// Words, quotes, comments and numbers of script lines.
#include "script/parser.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "base/fault.h"
#include "windows/shell/event_text.h"

namespace pelorium {
namespace {

TEST(SplitWords, TakesBlanksQuotesAndComments) {
  const struct {
    std::string line;
    Words words;
  } kCases[] = {
      {"   \t ", {}},
      {"  get\t\tForm5.Text5  \r", {"get", "Form5.Text5"}},
      {"quit # the rest", {"quit"}},
      {"quit#not", {"quit#not"}},
      {R"(type a.b "")", {"type", "a.b", ""}},
      {R"(type a.b "say \"so\" \\ now")", {"type", "a.b", R"(say "so" \ now)"}},
      {R"(answer "C:\new\file")", {"answer", R"(C:\new\file)"}},
      {R"(type a.b "# no comment" # a comment)", {"type", "a.b", "# no comment"}},
      {R"(key a.b 5")", {"key", "a.b", "5\""}},
      {"type a.b \"\xC3\xA4 \xFF\"", {"type", "a.b", "\xC3\xA4 \xFF"}},
  };
  for (const auto& c : kCases) EXPECT_EQ(SplitWords(c.line), c.words) << c.line;
  for (const char* line : {R"(")", R"(type a.b "open)", R"(type a.b "open\")", R"(type a.b "one"two)"}) {
    EXPECT_THROW(SplitWords(line), ScriptError) << line;
  }
}

TEST(Quoted, EscapesAsTheInputDoes) {
  EXPECT_EQ(Quoted(R"(a "b" \c)"), R"("a \"b\" \\c")");
  EXPECT_EQ(Quoted("two\r\nlines"), R"("two  lines")");
}

// Words of all the characters that mean something, many times over.
TEST(ScriptWord, ComesBackFromALine) {
  constexpr std::string_view kCharacters = "a\"\\ \t#.(,)'";
  std::uint32_t state = 1;
  const auto next = [&state](std::size_t below) {
    state = state * 1664525 + 1013904223;
    return (state >> 16) % below;
  };
  for (int round = 0; round < 2000; ++round) {
    Words words(next(4) + 1);
    std::string bare, quoted;
    for (std::string& word : words) {
      for (std::size_t length = next(6); word.size() < length;) word += kCharacters[next(kCharacters.size())];
      bare += ScriptWord(word) + " ";
      quoted += Quoted(word) + "\t";
    }
    ASSERT_EQ(SplitWords(bare), words) << bare;
    ASSERT_EQ(SplitWords(quoted), words) << quoted;
  }
}

TEST(Numbers, AreWholeWords) {
  EXPECT_EQ(NumberWord("-1.5e3", "value"), -1500);
  EXPECT_EQ(NumberWord("+.25", "value"), 0.25);
  for (const char* word : {"", "x", "1x", "1,5", "nan", "inf", "0x10", "1 "}) {
    EXPECT_THROW(NumberWord(word, "value"), ScriptError) << word;
  }
  EXPECT_THROW(NumberWord("1e999", "value"), Fault);
  EXPECT_EQ(IntegerWord("2147483647", "FIRST"), 2147483647);
  EXPECT_THROW(IntegerWord("1.5", "FIRST"), ScriptError);
  EXPECT_THROW(IntegerWord("2147483648", "FIRST"), Fault);
  EXPECT_EQ(SingleWord("0.1", "X"), 0.1f);
  EXPECT_THROW(SingleWord("1e39", "X"), Fault);
}

}  // namespace
}  // namespace pelorium
