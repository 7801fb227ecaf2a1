// The example of the README, played as it stands.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/headless_platform.h"
#include "platform/picture_files.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "windows/app.h"

namespace pelorium {
namespace {

class Example : public FolderTest {
 protected:
  Example() : old_(std::filesystem::current_path()), app(platform, folder()) {
    for (const char* name : {"projects", "objs", "objinfo", "images"}) {
      std::filesystem::create_directory(folder() / name);
    }
    WriteBytes(folder() / "help.rtf", "help");
    std::filesystem::current_path(folder());
    app.Start();
  }
  ~Example() override { std::filesystem::current_path(old_); }

  std::filesystem::path old_;
  HeadlessPlatform platform;
  App app;
};

TEST_F(Example, VaseLeavesProjectMeshReportAndPictures) {
  std::ifstream script(std::filesystem::path(PELORIUM_TESTS_DIR) / ".." / "examples" / "vase.script");
  ASSERT_TRUE(script.is_open());
  std::ostringstream out, err;
  ScriptRunner runner(app, platform, out, err, OnFailure::Stop);
  runner.Play(script, "vase.script");
  EXPECT_EQ(err.str(), "");
  // 10 clicks; 37 * 9 * 2 - 1 faces and 11 * 37 + 1 points.
  EXPECT_EQ(out.str(),
            "\"10\"\n\"665faces  points 408\"\n\" 3D VIEW \"\n723\n\"Sq Units 216144.773408279\"\n");
  const std::string obj = BytesOf(folder() / "objs" / "vase.obj");
  int vertices = 0, faces = 0;
  std::istringstream lines(obj);
  for (std::string line; std::getline(lines, line);) {
    vertices += line.starts_with("v ");
    faces += line.starts_with("f ");
  }
  EXPECT_EQ(vertices, 408);
  EXPECT_EQ(faces, 665);
  EXPECT_TRUE(BytesOf(folder() / "projects" / "vase.prj").starts_with(" 408  1 \r\n 665  1 \r\n"));
  for (const char* name : {"vase-profile", "vase-3d", "vase-top", "vase-petals"}) {
    Picture picture(1, 1);
    LoadPicture(picture, folder() / "images" / (std::string(name) + ".png"));
    EXPECT_EQ(picture.PixelWidth(), 964) << name;
  }
}

}  // namespace
}  // namespace pelorium
