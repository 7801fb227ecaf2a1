// The examples, played as they stand: what they answer and what files they leave (golden/*.txt).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "platform/headless_platform.h"
#include "platform/picture_files.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(PELORIUM_TESTS_DIR) / ".." / "examples";

std::vector<std::string> Names() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(kExamples)) {
    if (entry.path().extension() == ".script") names.insert(entry.path().stem());
  }
  return {names.begin(), names.end()};
}

// A picture's size, of other files how long they are and a number that any change of them changes.
std::string Kept(const fs::path& file) {
  if (file.extension() != ".png") return Digest(BytesOf(file));
  Picture picture(1, 1);
  LoadPicture(picture, file);
  return std::to_string(picture.PixelWidth()) + " x " + std::to_string(picture.PixelHeight()) + "\n";
}

class Examples : public FolderTest, public ::testing::WithParamInterface<std::string> {
 protected:
  Examples() : old_(fs::current_path()), app(platform, home()) {
    for (const char* name : {"projects", "objs", "objinfo", "images", "patterns"}) fs::create_directories(home() / name);
    app.drawsAtOnce = std::getenv("PELORIUM_DRAW_AT_ONCE") != nullptr;
    fs::create_directory_symlink(kExamples, folder() / "examples");
    fs::current_path(home());
    app.Start();
    app.faults.TakeAll();
  }
  ~Examples() override { fs::current_path(old_); }

  fs::path home() const { return folder() / "out"; }

  std::string Play(const std::string& name) {
    std::ifstream script(kExamples / (name + ".script"));
    std::ostringstream out;
    ScriptRunner runner(app, platform, out, out);
    runner.Play(script, name);
    for (const std::string& fault : app.faults.TakeAll()) out << "fault: " << fault << "\n";
    return out.str();
  }

  std::string Files() const {
    std::set<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(home())) {
      if (entry.is_regular_file()) files.insert(entry.path());
    }
    std::string text;
    for (const fs::path& file : files) text += file.lexically_relative(home()).string() + ": " + Kept(file);
    return text;
  }

  fs::path old_;
  HeadlessPlatform platform;
  App app;
};

TEST_P(Examples, AnswerAndLeaveWhatTheyDid) {
  const std::string answers = Play(GetParam());
  EXPECT_TRUE(MatchesGolden(answers + Files(), "script/golden/" + GetParam() + ".txt"));
}

INSTANTIATE_TEST_SUITE_P(Script, Examples, ::testing::ValuesIn(Names()), [](const auto& made) {
  std::string name = made.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace pelorium
