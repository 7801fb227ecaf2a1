// The image maker: which image an action reads and writes, and which one shows afterwards.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "imaging/canvas.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"

namespace pelorium {
namespace {

using enum Texture::Image;

class TextureWindow : public AppTest {
 protected:
  void Press(const char* control) { EXPECT_TRUE(app.Deliver({"texture", control})) << control; }
  void Drag(const char* bar, double value) {
    EXPECT_TRUE(app.Deliver({"texture", bar, UserAction::Drag, value, {}, {}})) << bar;
  }
  void Point(const char* picture, UserAction action, float x, float y, MouseButton button, Keys keys = {}) {
    EXPECT_TRUE(app.Deliver({"texture", picture, action, 0, {}, {button, keys}, x, y}));
  }
  void Click(const char* picture, float x, float y, MouseButton button = MouseButton::Left, Keys keys = {}) {
    Point(picture, UserAction::MouseDown, x, y, button, keys);
    Point(picture, UserAction::MouseUp, x, y, button, keys);
  }
  Colour At(Texture::Image image, int x, int y) {
    return static_cast<Colour>(window.BoxOf(image).picture().PixelAt(x, y));
  }
  double Shown() { return AsNumber(window.HScroll35.Value()); }

  Texture& window = app.imaging->texture;
};

TEST_F(TextureWindow, FiltersSeeWhatWasDrawnByHandOrFixed) {
  Drag("HScroll6", 0);
  Drag("HScroll5", 9);
  Click("Picture1", 100, 100);
  EXPECT_EQ(At(Foreground, 104, 100), 0u);
  Press("Command49");  // lines at every second pixel, which the filters do not know
  EXPECT_EQ(At(Foreground, 400, 401), 0u);
  Press("blur2");
  EXPECT_EQ(At(Foreground, 400, 401), kWhite);
  EXPECT_EQ(At(Foreground, 100, 100), 0u);
  Press("Command49");
  Press("Command4");
  Press("lightenit");
  EXPECT_EQ(Shown(), 2);
  EXPECT_EQ(At(Background, 400, 401), 0u);  // of no luminance
  EXPECT_EQ(window.Label32.caption(), "Background");
  EXPECT_FALSE(window.Picture1.visible());
  Press("negatory");
  EXPECT_EQ(At(Background, 400, 401), kWhite);
  EXPECT_EQ(At(Foreground, 400, 401), 0u);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(TextureWindow, TheRingIsSeenOnEveryGround) {
  for (const auto& [ground, ring] : {std::pair{127, kWhite}, {128, Rgb(0, 0, 0)}}) {
    window.Picture1.picture().backColour = Rgb(ground, ground, ground);
    window.Picture1.picture().Clear();
    Point("Picture1", UserAction::MouseMove, 50, 60, MouseButton::None);
    EXPECT_EQ(window.Picture1.overlay().at(0).colour, ring) << ground;
    EXPECT_EQ(At(Foreground, 50, 60), Rgb(ground, ground, ground));  // a hover leaves no mark
  }
}

TEST_F(TextureWindow, HoveringPicksNothingAndTheRightButtonPicks) {
  window.Picture1.picture().backColour = Rgb(10, 20, 30);
  window.Picture1.picture().Clear();
  Point("Picture1", UserAction::MouseMove, 50, 60, MouseButton::None);
  EXPECT_EQ(window.ChosenColour(), Rgb(150, 150, 150));
  EXPECT_EQ(window.Label15.caption(), "10");
  EXPECT_EQ(window.Shape2.left, 49.5);
  Point("Picture1", UserAction::MouseDown, 5, 5, MouseButton::Right);
  EXPECT_EQ(window.Picture5.picture().foreColour, Rgb(10, 20, 30));
  Point("Picture1", UserAction::MouseMove, -1, 5, MouseButton::None);  // carries the button that is down
  EXPECT_EQ(window.ChosenColour(), Rgb(1, 0, 0));
  Point("Picture1", UserAction::MouseUp, -1, 5, MouseButton::Right);
  Click("Picture11", 0, 0);
  EXPECT_EQ(window.ChosenColour(), kWhite);
  Click("Picture11", 255, 30, MouseButton::Right);
  Click("Picture11", 128, 30, MouseButton::Right, {.alt = true});
  EXPECT_EQ(window.Label11.caption(), "800");
  EXPECT_EQ(window.Label10.caption(), "301");  // 1 + 300.67
}

TEST_F(TextureWindow, TheMouseDrawsProfilesAndScrapes) {
  app.model.Profile(0).count = 2;
  app.model.ProfilePts(1, 0).X = 10;
  app.model.ProfilePts(1, 0).Z = 0;
  Press("Check7");
  Click("Picture5", 100, 100);  // a press over the Background draws none
  EXPECT_EQ(At(Background, 105, 100), kWhite);
  Click("Picture1", 100, 100);
  EXPECT_EQ(At(Foreground, 105, 100), Rgb(150, 150, 150));
  Press("Check7");
  Press("Check11");
  Press("Option2");
  Drag("HScroll1", 30);
  Click("Picture5", 100, 98);  // a square of 6 by 6 from the pointer shows the Foreground
  EXPECT_EQ(At(Background, 103, 100), Rgb(150, 150, 150));
  EXPECT_EQ(At(Background, 130, 98), Rgb(150, 150, 150));  // the circle
  EXPECT_EQ(At(Background, 106, 100), kWhite);
}

TEST_F(TextureWindow, OpeningTellsTheFiltersOnlyOfTheForeground) {
  Picture small(20, 10);
  small.backColour = Rgb(200, 0, 0);
  small.Clear();
  window.Open(Background, small);
  EXPECT_EQ(Shown(), 2);
  Press("blur2");
  EXPECT_EQ(Shown(), 1);
  EXPECT_EQ(At(Foreground, 5, 5), kWhite);
  EXPECT_EQ(At(Background, 5, 5), Rgb(200, 0, 0));
  EXPECT_EQ(window.Picture5.width, 24);
  Press("transfertoone");
  Press("blur2");  // the filters still know the Foreground of before
  EXPECT_EQ(At(Foreground, 5, 5), kWhite);
  window.Open(Foreground, small);
  Press("Option20");
  Press("posterit");
  EXPECT_EQ(Shown(), 2);
  EXPECT_EQ(window.Picture5.measures().PixelWidth(), 40);
  EXPECT_EQ(At(Background, 4, 4), Rgb(150, 150, 150));
  EXPECT_EQ(At(Background, 5, 4), Rgb(200, 0, 0));  // what stood there stays
  Press("set2");
  Press("Option3");
  EXPECT_EQ(At(Background, 500, 500), Rgb(150, 150, 150));
  EXPECT_EQ(At(Foreground, 511, 511), kWhite);
  Drag("HScroll35", 1);
  EXPECT_TRUE(window.Picture1.visible());
}

}  // namespace
}  // namespace pelorium
