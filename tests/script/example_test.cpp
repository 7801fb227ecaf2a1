// The examples, played as they stand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/headless_platform.h"
#include "platform/picture_files.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

namespace pelorium {
namespace {

const std::filesystem::path kExamples = std::filesystem::path(PELORIUM_TESTS_DIR) / ".." / "examples";

// Lines of an OBJ file that begin with `word`.
int LinesOf(const std::string& obj, std::string_view word) {
  int found = 0;
  std::istringstream lines(obj);
  for (std::string line; std::getline(lines, line);) found += line.starts_with(word);
  return found;
}

class Example : public FolderTest {
 protected:
  Example() : old_(std::filesystem::current_path()), app(platform, home()) {
    for (const char* name : {"projects", "objs", "objinfo", "images"}) {
      std::filesystem::create_directories(home() / name);
    }
    WriteBytes(home() / "help.rtf", "help");
    app.drawsAtOnce = std::getenv("PELORIUM_DRAW_AT_ONCE") != nullptr;
    std::filesystem::create_directory_symlink(kExamples, folder() / "examples");
    std::filesystem::current_path(home());
    app.Start();
  }
  ~Example() override { std::filesystem::current_path(old_); }

  std::filesystem::path home() const { return folder() / "out"; }

  // Plays examples/<name>.script and returns what it printed.
  std::string Play(const std::string& name) {
    std::ifstream script(kExamples / (name + ".script"));
    EXPECT_TRUE(script.is_open());
    std::ostringstream out, err;
    ScriptRunner runner(app, platform, out, err, OnFailure::Stop);
    runner.Play(script, name);
    EXPECT_EQ(err.str(), "");
    return out.str();
  }

  std::filesystem::path old_;
  HeadlessPlatform platform;
  App app;
};

TEST_F(Example, VaseLeavesProjectMeshReportAndPictures) {
  // 10 clicks; 37 * 9 * 2 - 1 faces and 11 * 37 + 1 points.
  EXPECT_EQ(Play("vase"),
            "\"10\"\n\"665faces  points 408\"\n\" 3D VIEW \"\n723\n\"Sq Units 216144.773408279\"\n");
  const std::string obj = BytesOf(home() / "objs" / "vase.obj");
  EXPECT_EQ(LinesOf(obj, "v "), 408);
  EXPECT_EQ(LinesOf(obj, "f "), 665);
  EXPECT_TRUE(BytesOf(home() / "projects" / "vase.prj").starts_with(" 408  1 \r\n 665  1 \r\n"));
  for (const char* name : {"vase-profile", "vase-3d", "vase-top", "vase-petals"}) {
    Picture picture(1, 1);
    LoadPicture(picture, home() / "images" / (std::string(name) + ".png"));
    EXPECT_EQ(picture.PixelWidth(), 964) << name;
  }
}

// What each small model is made of: points of a row, rows, and faces of its caps.
struct SmallModel {
  const char* name;
  int faces, points;

  friend std::ostream& operator<<(std::ostream& out, const SmallModel& model) { return out << model.name; }
};

class SmallModels : public Example, public ::testing::WithParamInterface<SmallModel> {};

TEST_P(SmallModels, AreMadeThroughTheControlsAndExported) {
  const SmallModel& model = GetParam();
  std::ostringstream counts;
  counts << '"' << model.faces << "faces  points " << model.points << "\"\n";
  EXPECT_EQ(Play(model.name), counts.str());
  EXPECT_EQ(app.faults.TakeAll(), std::vector<std::string>{});
  const std::string obj = BytesOf(home() / "objs" / (std::string(model.name) + ".obj"));
  EXPECT_EQ(LinesOf(obj, "v "), model.points);
  EXPECT_EQ(LinesOf(obj, "f "), model.faces);
}

INSTANTIATE_TEST_SUITE_P(Examples, SmallModels,
                         ::testing::Values(SmallModel{"twisted-column", 5 * 24 * 2 - 1, 5 * 25},
                                           SmallModel{"tapered-star", 11 * 11 * 2 - 1 + 9 + 9, 11 * 12},
                                           SmallModel{"spiral-shell", 13 * 35 * 2 - 1, 13 * 36},
                                           SmallModel{"path-bent-tube", 17 * 35 * 2 - 1, 17 * 36},
                                           SmallModel{"petal-vase", 37 * 9 * 2 - 1, 37 * 11 + 1},
                                           SmallModel{"goblet", 25 * 9 * 2 - 1 + 23, 25 * 11 + 1},
                                           SmallModel{"ring", 31 * 18 * 2 - 1, 31 * 20 + 1},
                                           SmallModel{"capped-box", 5 * 4 * 2 - 1 + 3 + 3, 5 * 5},
                                           SmallModel{"terrain-row", 34 * 19 * 2 - 1, 34 * 20},
                                           SmallModel{"banner", 37 * 7 * 2 - 1, 37 * 8},
                                           SmallModel{"pyramid", 4 + 2, 7},
                                           SmallModel{"spouted-jug", 25 * 6 * 2 - 1, 25 * 8 + 1}),
                         [](const auto& made) {
                           std::string name = made.param.name;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace pelorium
