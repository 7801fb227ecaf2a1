// Options, the application path, and several files in turn.
#include "script/command_line.h"

#include <fstream>

#include "script_fixture.h"

namespace pelorium {
namespace {

TEST(ParseCommandLine, TakesOptionsAndFiles) {
  const auto line = ParseCommandLine({"--home", "/a b", "one.pls", "--keep-going", "-", "two.pls"});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->home, "/a b");
  EXPECT_EQ(line->onFailure, OnFailure::KeepGoing);
  EXPECT_EQ(line->files, (std::vector<std::string>{"one.pls", "-", "two.pls"}));
  EXPECT_FALSE(ParseCommandLine({"-x", "one.pls"}));
  EXPECT_FALSE(ParseCommandLine({"one.pls", "--home"}));
}

}  // namespace
}  // namespace pelorium
