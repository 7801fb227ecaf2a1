// The pattern of Unfold on paper.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "app_fixture.h"
#include "interchange/flat_pattern.h"
#include "platform/picture_files.h"
#include "support/model_text.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/unfold_flat_pattern.h"
#include "windows/shell/hooks.h"

namespace pelorium {
namespace {

class PaperPattern : public AppTest {
 protected:
  Unfold& unfold = app.facetools->unfold;
};

// A strip of four standing squares, bent at every one, each triangle on points of its own, is one piece of
// paper: its inner edges are folds though they miss each other by the grain of the sweep.
TEST_F(PaperPattern, AnUnfoldedStripIsOnePiece) {
  const auto corner = [](int column, double z) {
    return Vec3{10.0 * (column / 2 + column % 2), 10.0 * (column / 2), z};
  };
  for (int q = 0; q < 4; ++q) {
    const Vec3 a = corner(q, 0), b = corner(q + 1, 0), c = corner(q, 10), d = corner(q + 1, 10);
    PutPoints(app.model, 0, 6 * q + 1, {a, b, c, b, d, c});
  }
  for (int f = 1; f <= 8; ++f) {
    app.model.Faces(0, f) = {.corner1pt = 3 * f - 2, .corner2pt = 3 * f - 1, .corner3pt = 3 * f};
  }
  app.model.Part(0).maxpoints = 24, app.model.Part(0).maxfaces = 8;
  FollowCounts(app);
  SyncFaceCorners(app);
  PressItem("unfoldme");
  unfold.Command1.Press();
  unfold.Check1.SetValue(true);
  for (const double face : {3, 5, 7}) {
    app.Deliver({"unfold", "VScroll2", UserAction::Drag, face});
    for (const char* button : {"Command2", "Command9"}) app.Deliver({"unfold", button, UserAction::Press});
  }
  PatternSettings settings;
  settings.lastFace = 8;
  const auto lines = MakeFlatPattern(app.model, settings).lines;
  const auto isFold = [](const PatternLine& line) { return line.kind == PatternLineKind::Fold; };
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), isFold), 7);
  EXPECT_EQ(lines.size(), 17U);
}

// A rectangle of 60 x 40 units at 2 mm each, drawn by another program at ten pixels a millimetre.
TEST_F(PaperPattern, APatternIsTrueToScaleOnPaper) {
  PutPoints(app.model, 0, 1, {{0, 0, 10}, {60, 0, 10}, {0, 40, 10}, {60, 0, 10}, {60, 40, 10}, {0, 40, 10}});
  for (int f = 1; f <= 2; ++f) {
    app.model.Faces(0, f) = {.corner1pt = 3 * f - 2, .corner2pt = 3 * f - 1, .corner3pt = 3 * f};
  }
  app.model.Part(0).maxpoints = 6, app.model.Part(0).maxfaces = 2;
  FollowCounts(app);
  PressItem("unfoldme");
  app.Deliver({"unfold", "Text7", UserAction::Type, 0, "2"});
  const std::filesystem::path folder = this->folder() / "patterns";
  platform.QueueAnswer((folder / "plate").string());
  unfold.Command26.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);  // no such folder
  std::filesystem::create_directory(folder);
  platform.QueueAnswer((folder / "plate").string());
  unfold.Command26.Press();
  ASSERT_TRUE(app.faults.TakeAll().empty());

  const std::string drawn = (this->folder() / "plate.png").string();
  const std::string command =
      "rsvg-convert -d 254 -p 254 -b white -o '" + drawn + "' '" + (folder / "plate.svg").string() + "'";
  ASSERT_EQ(std::system(command.c_str()), 0) << command;
  Picture paper(1, 1);
  LoadPicture(paper, drawn);
  EXPECT_EQ(paper.PixelWidth(), 2100);
  EXPECT_EQ(paper.PixelHeight(), 2970);
  int left = 9999, right = 0, top = 9999, bottom = 0;
  for (int y = 0; y < paper.PixelHeight(); ++y) {
    for (int x = 0; x < paper.PixelWidth(); ++x) {
      if (GrayLevel(paper.PixelAt(x, y)) > 100) continue;
      left = std::min(left, x), right = std::max(right, x), top = std::min(top, y),
      bottom = std::max(bottom, y);
    }
  }
  EXPECT_NEAR(right - left, 1200, 4);  // the line is three pixels wide
  EXPECT_NEAR(bottom - top, 800, 4);
  EXPECT_NEAR(left + right, 2100, 2);

  app.Deliver({"unfold", "VScroll1", UserAction::Drag, 20});  // nothing lies there
  platform.QueueAnswer((folder / "plate").string());
  unfold.Command26.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_GT(std::filesystem::file_size(folder / "plate.svg"), 500U);
}

}  // namespace
}  // namespace pelorium
