// Options, the application path, several files in turn, and going on after a failure.
#include "script/command_line.h"

#include <sstream>

#include "platform/headless_platform.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

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

class PlayFiles : public FolderTest {
 protected:
  std::string File(const std::string& name, const std::string& text) {
    WriteBytes(folder() / name, text);
    return folder() / name;
  }

  int PlayThem(const std::vector<std::string>& files, OnFailure onFailure = OnFailure::Stop) {
    out.str("");
    err.str("");
    ScriptRunner runner(app, platform, out, err, onFailure);
    return PlayAll(runner, files, input, err);
  }

  HeadlessPlatform platform;
  App app{platform, folder()};
  std::istringstream input{"get TessCount\nquit\nget FromInput\n"};
  std::ostringstream out, err;
};

TEST_F(PlayFiles, OneAfterTheOther) {
  const std::string one = File("one.pls", "set TessCount 3\nget TessCount\n");
  const std::string two = File("two.pls", "get TessCount\n\nget Nothing\n");
  EXPECT_EQ(PlayThem({one, two, one}), 2);
  EXPECT_EQ(out.str(), "3\n3\n");
  EXPECT_EQ(err.str(), "error: " + two + ":3: there is no window \"Nothing\"\n");
  EXPECT_EQ(PlayThem({two, one}, OnFailure::KeepGoing), 0);
  EXPECT_EQ(out.str(), "3\n3\n");
}

TEST_F(PlayFiles, StandardInputIsReadNoFurtherThanPlayed) {
  EXPECT_EQ(PlayThem({}), 0);
  EXPECT_EQ(out.str(), "1\n");
  EXPECT_EQ(PlayThem({"-"}), 2);
  EXPECT_EQ(err.str(), "error: stdin:1: there is no window \"FromInput\"\n");
}

TEST_F(PlayFiles, AMissingFileIsAnErrorUnlessAllHasEnded) {
  EXPECT_EQ(PlayThem({File("quit.pls", "quit\n"), "/nowhere/at all.pls"}), 0);
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(PlayThem({"/nowhere/at all.pls"}), 2);
  EXPECT_EQ(err.str(), "error: /nowhere/at all.pls: cannot be opened\n");
  EXPECT_EQ(PlayThem({folder()}), 2);
}

}  // namespace
}  // namespace pelorium
