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
  const auto plain = ParseCommandLine({});
  ASSERT_TRUE(plain);
  EXPECT_FALSE(plain->home);
  EXPECT_EQ(plain->onFailure, OnFailure::Stop);
}

TEST(ParseCommandLine, RefusesUnknownOptions) {
  EXPECT_FALSE(ParseCommandLine({"--help"}));
  EXPECT_FALSE(ParseCommandLine({"-x", "one.pls"}));
  EXPECT_FALSE(ParseCommandLine({"one.pls", "--home"}));
}

TEST(HomeFolder, TheOptionComesFirst) {
  CommandLine line;
  EXPECT_EQ(HomeFolder(line, nullptr, "/bin"), "/bin");
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

  int PlayThem(const std::vector<std::string>& files, OnFailure onFailure = OnFailure::Stop) {
    ScriptRunner runner(app, platform, out, err, onFailure);
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

TEST_F(PlayFiles, GoesOnToTheNextFile) {
  const std::string bad = File("bad.pls", "get Nothing\n");
  const std::string good = File("good.pls", "get TessCount\n");
  EXPECT_EQ(PlayThem({bad, good}, OnFailure::KeepGoing), 0);
  EXPECT_EQ(out.str(), "1\n");
}

TEST_F(PlayFiles, StandardInputHasAName) {
  EXPECT_EQ(PlayThem({}), 2);
  EXPECT_EQ(out.str(), "1\n");
  EXPECT_EQ(err.str(), "error: stdin:2: there is no window \"FromInput\"\n");
}

TEST_F(PlayFiles, AMissingFileIsAnError) {
  EXPECT_EQ(PlayThem({"/nowhere/at all.pls"}), 2);
  EXPECT_EQ(err.str(), "error: /nowhere/at all.pls: cannot be opened\n");
  EXPECT_EQ(PlayThem({testing::TempDir()}), 2);
}

TEST_F(PlayFiles, QuitEndsAllFiles) {
  const std::string quit = File("quit.pls", "quit\n");
  EXPECT_EQ(PlayThem({quit, "/nowhere/at all.pls"}), 0);
  EXPECT_EQ(err.str(), "");
}

}  // namespace
}  // namespace pelorium
