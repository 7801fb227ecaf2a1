// Images behind the model, and what is taken from their gray levels.
#include "app_fixture.h"
#include "platform/picture_files.h"
#include "support/model_text.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/geometry/specialeffects6_mesh.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

int ColourOf(int red, int green, int blue) { return static_cast<int>(Rgb(red, green, blue)); }

class Images : public AppTest {
 protected:
  double HeightOfClick(float x, float y, const char* control = "Picture1", const char* owner = "Form36") {
    UserEvent click{owner, control, UserAction::MouseDown};
    click.x = x, click.y = y;
    app.TessCount = 1;
    app.model.Points(0, 1).Z = -5;
    if (control == std::string("Picture1")) app.view->form51.Option3.SetValue(true);
    app.Deliver(click);
    return app.model.Points(0, 1).Z;
  }
  Picture& image = app.view->form36.Picture2.picture();
};

TEST_F(Images, LieBehindTheModel) {
  app.view->form51.Option5.SetValue(true);
  Picture small(2, 1);
  small.SetPixels({Rgb(200, 100, 31), Rgb(1, 2, 3)});
  platform.SetClipboardPicture(small);
  PressItem("getitclip");
  const auto view = [this](int x) { return app.view->form36.Picture1.picture().PixelAt(x, 0); };
  EXPECT_EQ(image.PixelAt(1, 0), ColourOf(1, 2, 3));
  EXPECT_EQ(image.PixelAt(2, 0), 0);
  app.view->form51.Check1.SetValue(false);
  EXPECT_EQ(view(0), ColourOf(200, 100, 31));
  ClickAt(0, 0);
  EXPECT_EQ(app.view->form36.Label53.caption(), "200 100 31  grey 110");
  app.view->form36.HScroll2.SetValue(10);
  EXPECT_EQ(view(0), ColourOf(64, 64, 64));
  EXPECT_EQ(view(10), ColourOf(200, 100, 31));
  PressItem("senittoboard");
  EXPECT_EQ(platform.ClipboardPicture()->PixelAt(10, 0), ColourOf(200, 100, 31));
  PressItem("clearimage");
  EXPECT_EQ(view(10), ColourOf(64, 64, 64));
  EXPECT_EQ(image.PixelAt(0, 0), 0);
}

TEST_F(Images, GiveProfilesTheirGray) {
  image.backColour = Rgb(100, 100, 100);
  image.Clear();
  app.model.ProfilePts(0, 0).Y = 10;
  Formulas& window = app.profiles->formulas;
  window.Command15.Press();
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 25);
  app.view->form36.VScroll1.SetValue(10);  // all points above the image
  window.HScroll4.box.Type("1");
  window.Command15.Press();
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 25);
}

TEST_F(Images, GiveMeshPointsTheGrayUnderTheClick) {
  EXPECT_EQ(HeightOfClick(338, 282), -5);
  EXPECT_EQ(HeightOfClick(338, 282, "Picture4", "specialeffects6"), 300);
  std::vector<std::uint32_t> pixels = image.Pixels();
  pixels[37 * kImageWidth + 20] = Rgb(90, 120, 150);  // 637 - 600 rows down
  image.SetPixels(pixels);
  EXPECT_EQ(HeightOfClick(338, 282), 120);
  EXPECT_EQ(HeightOfClick(338, 283, "Picture4", "specialeffects6"), 0);
  EXPECT_EQ(HeightOfClick(317, -318), -5);  // outside
  PressItem("clearimage");
  EXPECT_EQ(HeightOfClick(338, 282), -5);
  app.geometry->specialeffects6.Check1.SetValue(true);
  app.geometry->specialeffects6.HScroll2.Drag(-70);
  EXPECT_EQ(HeightOfClick(338, 282), -70);
}

TEST_F(Images, MoldTheChosenLayers) {
  PutPoints(app.model, 0, 1, {{10, 0, 0}, {20, 0, 0}, {30, 0, 0}, {40, 20, 5}, {40, 20, 5}, {50, 600, 5}});
  app.model.Part(0).maxpoints = 6;
  app.view->form5.HScroll25.SetValue(6);
  SpecialEffects1& window = app.geometry->specialeffects1;
  const auto press = [this](const char* button, MouseButton side = MouseButton::Left) {
    EXPECT_TRUE(app.Deliver({"specialeffects1", button, UserAction::Press, 0, {}, {side, {}}})) << button;
  };
  Picture gray(60, 640);
  gray.backColour = Rgb(50, 100, 60);  // gray 70
  gray.Clear();
  SavePicture(gray, folder() / "picture3.bmp");
  press("Command35");  // there is no such file
  EXPECT_EQ(app.faults.TakeAll().size(), 1u);
  press("Command36");
  EXPECT_EQ(image.PixelWidth(), kImageWidth);
  EXPECT_EQ(image.PixelAt(59, 639), ColourOf(50, 100, 60));
  EXPECT_EQ(image.PixelAt(60, 639), 0);

  app.view->form5.HScroll5.SetValue(2);
  window.HScroll23.Drag(1);
  window.HScroll22.Drag(1);
  EXPECT_EQ(app.view->form5.HScroll20.value(), 3);
  EXPECT_EQ(app.view->form5.HScroll25.value(), 4);
  app.view->form5.Text5.SetText("10");
  app.Deliver({"specialeffects1", "Text27", UserAction::Type, 0, "1.5"});
  press("Command29");
  EXPECT_EQ(PointsText(app.model, 0, 3, 4), "40 0 0 | 55 20 5");
  window.HScroll16.Drag(71);  // the picture is darker
  press("Command21", MouseButton::Right);
  press("Command22", MouseButton::Right);  // down by 249 - 71
  EXPECT_EQ(window.HScroll15.value(), 71);
  EXPECT_EQ(window.HScroll16.value(), 0);
  press("Command25");  // one layer is its own difference of 0
  window.HScroll22.Drag(2);
  app.Deliver({"specialeffects1", "Text4", UserAction::Type, 0, ".5"});
  press("Command15", MouseButton::Right);
  EXPECT_EQ(PointsText(app.model, 0, 1, 6),
            "10 0 0 | 20 0 0 | 40 0 -35 | 55 20 -35 | 40 20 -35 | 50 600 -35");
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

TEST_F(Images, OfTheMeshWindowIsInTheUnitsOfTheView) {
  PressItem("triangleobj");
  app.geometry->specialeffects6.Command1.Press();
  const Picture& area = app.geometry->specialeffects6.Picture4.picture();
  EXPECT_EQ(area.ScaleWidth(), app.view->form36.Picture1.picture().ScaleWidth());
  const auto isDrawnAt = [&](float x, float y) {
    app.EndEvent();
    const Pixel p = area.ToPixel(x, y);
    return area.PixelAt(p.x, p.y) != static_cast<int>(area.backColour);
  };
  EXPECT_TRUE(isDrawnAt(318 + 25, -318 + 43.3F));
  app.geometry->specialeffects6.HScroll1.Drag(1);
  EXPECT_FALSE(isDrawnAt(318 + 25, -318 + 43.3F));
}

}  // namespace
}  // namespace pelorium
