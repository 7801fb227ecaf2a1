// Faults, the trap and its log.
#include "base/fault.h"

#include <stdexcept>

#include "support/harness.h"

namespace pelorium {
namespace {

using Lines = std::vector<std::string>;

TEST(Fault, SaysWhatAndWhere) {
  EXPECT_STREQ(Fault(FaultKind::Subscript, "point 23001").what(), "subscript out of range: point 23001");
  EXPECT_STREQ(Fault(FaultKind::EndOfFile, "").what(), "end of file");
}

TEST(Fault, TheTrapEndsQuietlyKeepsWhatWasDoneAndNotes) {
  FaultLog log;
  int done = 0;
  EXPECT_TRUE(Trapped(log, "Form1.Good", [&] { ++done; }));
  EXPECT_FALSE(Trapped(log, "Form1.Bad", [&] {
    ++done;
    throw Fault(FaultKind::DivisionByZero, "scale");
  }));
  EXPECT_FALSE(Trapped(log, "Form1.Other", [] { throw std::runtime_error("from a library"); }));
  EXPECT_EQ(done, 2);
  EXPECT_EQ(log.TakeAll(), (Lines{"Form1.Bad: division by zero: scale", "Form1.Other: from a library"}));
  EXPECT_EQ(log.TakeAll(), Lines{});
}

TEST(Fault, TheLogIsBounded) {
  FaultLog log;
  const Fault fault(FaultKind::Overflow, "");
  for (std::size_t i = 0; i < FaultLog::kCapacity; ++i) log.Note("x", fault);
  EXPECT_EQ(log.TakeAll().size(), 1000U);
  for (std::size_t i = 0; i < FaultLog::kCapacity + 7; ++i) log.Note("x", fault);
  const Lines lines = log.TakeAll();
  ASSERT_EQ(lines.size(), 1001U);
  EXPECT_EQ(lines.back(), "and 7 more");
  log.Note("y", fault);
  EXPECT_EQ(log.TakeAll(), Lines{"y: overflow"});
}

}  // namespace
}  // namespace pelorium
