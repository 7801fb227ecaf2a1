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

TEST(HomeFolder, TheOptionComesFirst) {
  CommandLine line;
  EXPECT_EQ(HomeFolder(line, "", "/bin"), "/bin");
  EXPECT_EQ(HomeFolder(line, "/env", "/bin"), "/env");
  line.home = "/option";
  EXPECT_EQ(HomeFolder(line, "/env", "/bin"), "/option");
}

class PlayFiles : public ScriptTest {
 protected:
  std::string File(const std::string& name, const std::string& text) {
    const std::string path = testing::TempDir() + name;
    std::ofstream(path) << text;
    return path;
  }

  int PlayThem(const std::vector<std::string>& files) {
    ScriptRunner runner(app, platform, out, err, OnFailure::Stop);
    std::istringstream input("get TessCount\nget FromInput\n");
    return PlayAll(runner, files, input, err);
  }
};

TEST_F(PlayFiles, OneAfterTheOther) {
  const std::string one = File("one.pls", "set TessCount 3\nget TessCount\n");
  const std::string two = File("two.pls", "get TessCount\n\nget Nothing\n");
  EXPECT_EQ(PlayThem({one, two, one}), 2);
  EXPECT_EQ(out.str(), "3\n3\n");
  EXPECT_EQ(err.str(), "error: " + two + ":3: there is no window \"Nothing\"\n");
}

TEST_F(PlayFiles, StandardInputHasAName) {
  EXPECT_EQ(PlayThem({}), 2);
  EXPECT_EQ(out.str(), "1\n");
  EXPECT_EQ(err.str(), "error: stdin:2: there is no window \"FromInput\"\n");
}

TEST_F(PlayFiles, AMissingFileIsAnErrorUnlessAllHasEnded) {
  EXPECT_EQ(PlayThem({File("quit.pls", "quit\n"), "/nowhere/at all.pls"}), 0);
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(PlayThem({"/nowhere/at all.pls"}), 2);
  EXPECT_EQ(err.str(), "error: /nowhere/at all.pls: cannot be opened\n");
  EXPECT_EQ(PlayThem({testing::TempDir()}), 2);
}

}  // namespace
}  // namespace pelorium
