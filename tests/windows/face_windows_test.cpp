// Face Info and Unfold, as a person uses them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "app_fixture.h"
#include "base/numbers.h"
#include "interchange/flat_pattern.h"
#include "platform/picture_files.h"
#include "support/model_text.h"
#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/unfold_flat_pattern.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class FaceWindows : public AppTest {
 protected:
  // A strip of `quads` standing squares of side 10, bent at every one, each triangle on points of its own.
  void MakeBentStrip(int quads) {
    const auto corner = [](int column, double z) {
      return Vec3{10.0 * (column / 2 + column % 2), 10.0 * (column / 2), z};
    };
    for (int q = 0; q < quads; ++q) {
      const Vec3 a = corner(q, 0), b = corner(q + 1, 0), c = corner(q, 10), d = corner(q + 1, 10);
      PutPoints(app.model, 0, 6 * q + 1, {a, b, c, b, d, c});
    }
    for (int f = 1; f <= 2 * quads; ++f) {
      app.model.Faces(0, f) = {.corner1pt = 3 * f - 2, .corner2pt = 3 * f - 1, .corner3pt = 3 * f};
    }
    app.model.Part(0).maxpoints = static_cast<std::int16_t>(6 * quads);
    app.model.Part(0).maxfaces = static_cast<std::int16_t>(2 * quads);
    FollowCounts(app);
    SyncFaceCorners(app);
  }
  void Do(const std::string& control, UserAction action, double value = 0, const std::string& text = {}) {
    const std::size_t dot = control.find('.');
    app.Deliver({control.substr(0, dot), control.substr(dot + 1), action, value, text});
  }
  void Drag(const std::string& bar, double value) { Do(bar, UserAction::Drag, value); }
  void Type(const std::string& box, const std::string& text) { Do(box, UserAction::Type, 0, text); }
  std::string Corners(int face) { return FacesText(app.model, 0, face, face); }

  EditByFace& info = app.facetools->editbyface;
  Unfold& unfold = app.facetools->unfold;
};

TEST_F(FaceWindows, NumbersAreTypedAndPicked) {
  MakeBentStrip(3);
  PressItem("editfaces");
  Drag("editbyface.VScroll2", 2);
  EXPECT_EQ(info.Text5.text() + " " + info.Text6.text() + " " + info.Text7.text(), "4 5 6");
  EXPECT_EQ(info.Text15.text() + " " + info.Text16.text(), "0 10");
  EXPECT_EQ(info.Label13.caption(), "14.14");
  Type("editbyface.Text14", "12.345");
  EXPECT_EQ(app.model.Points(0, 5).X, 12.345);
  EXPECT_EQ(info.Text14.text(), "12.345");  // is not rounded under the hand that types
  EXPECT_EQ(info.Label8.caption(), "10.27");

  app.view->form36.Label16.SetCaption("1");
  Do("editbyface.Text7", UserAction::DoubleClick);
  EXPECT_EQ(Corners(2), "4 5 1");
  Type("editbyface.Text6", "0");  // a zero behind the first corner makes the first one 1, and stands
  EXPECT_EQ(Corners(2), "1 0 1");
  Type("editbyface.Text7", "99999");
  Type("editbyface.Text8", "7");
  EXPECT_EQ(Corners(2), "1 0 23000");
  EXPECT_EQ(info.Text5.text() + " " + info.Text7.text(), "1 23000");

  Do("editbyface.Frame2", UserAction::DoubleClick);
  Do("editbyface.Command25", UserAction::Press);
  EXPECT_EQ(app.model.Points(0, 1).Z, 5);
  EXPECT_EQ(info.Text3.text(), "5");
  Type("editbyface.Text4", "0");
  EXPECT_EQ(app.model.PointMark(0, 1) + app.model.Points(0, 1).onoff, 0);
  Type("editbyface.Text9", "99999");
  EXPECT_EQ(info.Text9.text(), "23000");
  EXPECT_EQ(info.VScroll1.max(), 23000);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

// The window is open: its numbers follow what is moved in the view.
TEST_F(FaceWindows, AFaceIsMeasuredTurnedFlattenedAndSaved) {
  MakeBentStrip(3);
  PressItem("editfaces");
  info.Check1.SetValue(true);
  info.Check2.SetValue(true);
  Drag("editbyface.VScroll2", 3);
  EXPECT_EQ(FaceRangeStart(app), 3);
  EXPECT_EQ(FaceRangeEnd(app), 3);
  EXPECT_EQ(PointsText(app.model, 0, 10, 10), "10 10 0");  // of the other face of the pair
  for (const int corner : {7, 8, 9}) EXPECT_NEAR(app.model.Points(0, corner).Z, 10, 0.01);
  info.Command15.Press();
  EXPECT_NEAR(Val(info.Label15.caption()), 0, 0.1);
  info.Command9.Press();
  EXPECT_EQ(Origin(app).X, Val(GeneralForm(app.model.Points(0, 8).X)));
  app.view->form36.Option7.SetValue(true);
  ClickAt(0, 0);
  Mouse(UserAction::MouseDown, 0, 0, MouseButton::Right);
  Mouse(UserAction::MouseMove, 0, 20, MouseButton::Right);
  EXPECT_EQ(info.Text13.text(), "12");

  info.Command14.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);  // there is no folder "faces"
  std::filesystem::create_directory(folder() / "faces");
  info.Command14.Press();
  EXPECT_TRUE(std::filesystem::exists(folder() / "faces" / "face3.bmp"));
}

TEST_F(FaceWindows, AStripIsUnfoldedPairByPair) {
  MakeBentStrip(4);
  PressItem("unfoldme");
  EXPECT_EQ(unfold.VScroll2.max(), 8);
  unfold.Command1.Press();
  const auto& overlay = app.view->form36.Picture1.overlay();
  EXPECT_EQ(overlay.size(), 6U);
  unfold.Check1.SetValue(true);
  for (int face = 3; face <= 7; face += 2) {
    Drag("unfold.VScroll2", face);
    EXPECT_EQ(overlay.size(), 6U);
    Do("unfold.Command2", UserAction::Press);
    EXPECT_EQ(overlay.size(), 0U);
    Do("unfold.Command9", UserAction::Press);
  }
  // Two pairs meet at places and along an edge, within the grain of the sweep.
  for (int pair = 0; pair < 3; ++pair) {
    const PointRec &b = app.model.Points(0, 6 * pair + 2), &a = app.model.Points(0, 6 * pair + 7);
    EXPECT_NEAR(a.X, b.X, 1e-9) << pair;
    EXPECT_NEAR(a.Y, b.Y, 1e-9) << pair;
    EXPECT_EQ(a.Z, 10) << pair;
  }
  EXPECT_EQ(FaceRangeStart(app), 7);
  EXPECT_EQ(FaceRangeEnd(app), 8);
  EXPECT_EQ(Origin(app).X, Val(GeneralForm(app.model.Points(0, 14).X)));
  EXPECT_TRUE(app.faults.TakeAll().empty());

  // One piece of paper: its inner edges are folds though they miss each other by the grain of the sweep.
  PatternSettings settings;
  settings.lastFace = 8;
  const FlatPattern pattern = MakeFlatPattern(app.model, settings);
  EXPECT_EQ(std::count_if(pattern.lines.begin(), pattern.lines.end(),
                          [](const PatternLine& line) { return line.kind == PatternLineKind::Fold; }),
            7);
  EXPECT_EQ(pattern.lines.size(), 17U);

  unfold.Check2.SetValue(true);
  EXPECT_EQ(unfold.VScroll2.smallChange, 1);
  const std::string flat = PointsText(app.model, 0, 1, 24);
  Drag("unfold.VScroll2", 8);
  EXPECT_EQ(FaceRangeEnd(app), 8);
  EXPECT_NE(PointsText(app.model, 0, 1, 24), flat);
  const std::string after = PointsText(app.model, 0, 1, 24);
  unfold.Check2.SetValue(false);  // steps to the pair's first face and lays nothing
  EXPECT_EQ(unfold.VScroll2.value(), 7);
  EXPECT_EQ(PointsText(app.model, 0, 1, 24), after);
  app.Deliver({"unfold", "Command24", UserAction::Press, 0, {}, {MouseButton::Right, {}}});
  EXPECT_EQ(app.model.Faces(0, 6).onoff, 1);
  EXPECT_EQ(app.model.Faces(0, 7).onoff + app.model.Faces(0, 8).onoff, 0);
}

// A rectangle of 60 x 40 units at 2 mm each, drawn by another program at ten pixels a millimetre.
TEST_F(FaceWindows, APatternIsTrueToScaleOnPaper) {
  PutPoints(app.model, 0, 1, {{0, 0, 10}, {60, 0, 10}, {0, 40, 10}, {60, 0, 10}, {60, 40, 10}, {0, 40, 10}});
  for (int f = 1; f <= 2; ++f) {
    app.model.Faces(0, f) = {.corner1pt = 3 * f - 2, .corner2pt = 3 * f - 1, .corner3pt = 3 * f};
  }
  app.model.Part(0).maxpoints = 6, app.model.Part(0).maxfaces = 2;
  FollowCounts(app);
  PressItem("unfoldme");
  Type("unfold.Text7", "2");
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

  Drag("unfold.VScroll1", 20);  // nothing lies there
  platform.QueueAnswer((folder / "plate").string());
  unfold.Command26.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_GT(std::filesystem::file_size(folder / "plate.svg"), 500U);
}

}  // namespace
}  // namespace pelorium
