// The parts that come with the program: each is made by its script, and read by the windows at its size.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/headless_platform.h"
#include "script/script_runner.h"
#include "support/harness.h"
#include "windows/shell/app_shell.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

struct StarterPart {
  const char* name;
  const char* library;
  int points, faces;
  Vec3 size;
};

const std::vector<StarterPart> kParts = {
    {"cube", "1", 8, 12, {200, 200, 200}},        {"pyramid", "1", 5, 6, {200, 200, 200}},
    {"cylinder", "1", 126, 149, {200, 200, 200}}, {"cone", "1", 101, 99, {200, 200, 200}},
    {"sphere", "2", 351, 599, {200, 200, 200}},   {"torus", "2", 351, 599, {200, 200, 60}},
    {"star", "3", 12, 20, {190.21, 60, 180.9}},   {"tube", "2", 151, 199, {200, 200, 200}},
    {"steps", "3", 33, 61, {200, 200, 200}},      {"arch", "3", 151, 209, {200, 40, 100}},
};

class StarterParts : public FolderTest {
 protected:
  StarterParts() : app(platform, folder()) {
    for (const char* name : {"parts0", "parts1", "parts2", "parts3"}) fs::create_directory(folder() / name);
    const fs::path source = fs::path(PELORIUM_TESTS_DIR) / ".." / "data" / "parts";
    fs::copy_file(source / "presetlist.txt", folder() / "parts0" / "presetlist.txt");
    app.Start();
    app.faults.TakeAll();  // the help text is not there
    std::ifstream script(source / "starter.script");
    Play(script);
  }

  void Play(std::istream& script) {
    std::ostringstream out;
    ScriptRunner runner(app, platform, out, out);
    runner.Play(script, "script");
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(app.faults.TakeAll(), std::vector<std::string>{});
  }

  // What lies in Part 0 after these lines, the extent of the points of its faces by axis.
  void ExpectPart(const StarterPart& part, const std::string& lines) {
    SCOPED_TRACE(lines);
    app.model.Part(0).maxfaces = app.model.Part(0).maxpoints = 0;
    std::istringstream script(lines);
    Play(script);
    EXPECT_EQ(app.model.Part(0).maxpoints, part.points);
    EXPECT_EQ(app.model.Part(0).maxfaces, part.faces);
    for (auto [axis, size] :
         {std::pair{&PointRec::X, part.size.X}, {&PointRec::Y, part.size.Y}, {&PointRec::Z, part.size.Z}}) {
      double lowest = 1e9, highest = -1e9;
      for (const FaceRec& face : FaceRange(app.model, 0, 1, part.faces)) {
        for (const int corner : {face.corner1pt, face.corner2pt, face.corner3pt}) {
          lowest = std::min(lowest, app.model.Points(0, corner).*axis);
          highest = std::max(highest, app.model.Points(0, corner).*axis);
        }
      }
      EXPECT_NEAR(highest - lowest, size, 0.011);
    }
  }

  HeadlessPlatform platform;
  App app;
};

TEST_F(StarterParts, AreReadAtTheirSize) {
  for (std::size_t i = 0; i < kParts.size(); ++i) {
    const StarterPart& part = kParts[i];
    const std::string file = "parts" + std::string(part.library) + "/" + part.name;
    ExpectPart(part, "set shapes.Text11 " + file + ".obj\npress shapes.Command2\n");
    ExpectPart(part, "set shapes2.Text11 " + file + ".txt\npress shapes2.Command22\n");
    ExpectPart(part, "set Dialog.List1 -1\nset Dialog.List1 " + std::to_string(i) + "\n");
    EXPECT_EQ(app.model.Part(0).PartName, (folder() / "parts0" / (std::string(part.name) + ".obj")).string());
  }
}

}  // namespace
}  // namespace pelorium
