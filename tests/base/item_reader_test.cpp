// Free-format items.
#include "base/item_reader.h"

#include "support/harness.h"

namespace pelorium {
namespace {

std::vector<double> Numbers(std::string_view text) {
  ItemReader reader(text);
  std::vector<double> numbers;
  while (!reader.AtEnd()) numbers.push_back(reader.Number());
  return numbers;
}

TEST(ItemReader, SeparatesItems) {
  struct Row {
    std::string_view text;
    std::vector<double> numbers;
  };
  const Row table[] = {
      {"", {}},
      {" \t\r\n", {}},
      {"1 2\t3", {1, 2, 3}},
      {"1 , 2", {1, 2}},
      {"1,,2", {1, 0, 2}},
      {"1, ,2", {1, 0, 2}},
      {",5", {0, 5}},
      {"1,", {1}},
      {"1,\r\n2", {1, 2}},
      {"1\r\n2\n3\r4", {1, 2, 3, 4}},
      {"1\r\n\r\n\n2", {1, 2}},
      {"1\r\n,2", {1, 0, 2}},
      {"-1.5E2,+.5,1D-1", {-150, 0.5, 0.1}},
      {"1 2\x1A 3", {1, 2}},
      {"\x1A", {}},
      {"\xEF\xBB\xBF"
       "7",
       {7}},
  };
  for (const Row& row : table) EXPECT_EQ(Numbers(row.text), row.numbers) << row.text;
}

TEST(ItemReader, Faults) {
  for (const std::string_view text : {"a", "1a", "1;2", "\"1\"", "nan", "1e"}) {
    EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { ItemReader(text).Number(); })) << text;
  }
  for (const std::string_view text : {"", "  \r\n", "\x1A 1"}) {
    EXPECT_TRUE(Raises(FaultKind::EndOfFile, [&] { ItemReader(text).Number(); }));
  }
  EXPECT_TRUE(Raises(FaultKind::EndOfFile, [] { ItemReader("").Line(); }));
  EXPECT_TRUE(Raises(FaultKind::Overflow, [] { ItemReader("32768").Integer<std::int16_t>(); }));
  EXPECT_EQ(ItemReader("32766.5").Integer<std::int16_t>(), 32766);
}

TEST(ItemReader, ABadItemIsPassedOver) {
  ItemReader reader("x 2");
  EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { reader.Number(); }));
  EXPECT_EQ(reader.Number(), 2);
}

TEST(ItemReader, Lines) {
  ItemReader reader("first, line\r\n\n 1 rest of it\r2\r\nafter\n\nlast\x1Ahidden");
  EXPECT_EQ(reader.Line(), "first, line");
  EXPECT_EQ(reader.Line(), "");
  EXPECT_EQ(reader.Number(), 1);
  EXPECT_EQ(reader.Line(), "rest of it");
  EXPECT_EQ(reader.Number(), 2);  // takes its line end with it
  EXPECT_EQ(reader.Line(), "after");
  EXPECT_EQ(reader.Line(), "");
  EXPECT_EQ(reader.Line(), "last");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(ItemReader, AFaultTellsItsLine) {
  ItemReader in("1 2\r\n\n3,x\r4");
  for (int i = 0; i < 3; ++i) in.Number();
  try {
    in.Integer<int>();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_STREQ(fault.what(), "bad number: \"x\", line 3");
  }
  const std::int64_t numbers[] = {7, 12};
  ItemReader taken("1\nx", numbers);
  taken.Number();
  try {
    taken.Number();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_STREQ(fault.what(), "bad number: \"x\", line 12");
  }
  ItemReader wide("1\r70000");
  wide.Number();
  EXPECT_THROW(
      try { wide.Integer<std::int16_t>(); } catch (const Fault& fault) {
        EXPECT_STREQ(fault.what(), "overflow: 70000, line 2");
        throw;
      },
      Fault);
}

}  // namespace
}  // namespace pelorium
