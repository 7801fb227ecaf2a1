// Stories of the windows that make the image behind the model.
#include "app_fixture.h"
#include "platform/picture_files.h"
#include "windows/imaging/frm_custom_filter.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class GeneratedImages : public AppTest {
 protected:
  void Send(const std::string& window, const std::string& control, UserAction action, double value = 0) {
    EXPECT_TRUE(app.Deliver({window, control, action, value, {}, {}})) << window << "." << control;
  }
  void Press(const std::string& window, const std::string& control, MouseButton button = MouseButton::Left) {
    EXPECT_TRUE(app.Deliver({window, control, UserAction::Press, 0, {}, {button, {}}})) << window << control;
  }
  void Paint(UserAction action, float x, float y) {
    app.Deliver({"Specialeffects3", "Picture1", action, 0, {}, {}, x, y});
  }
  std::vector<std::uint32_t> Image() { return app.view->form36.Picture2.picture().Pixels(); }
  int ViewAt(int x, int y) { return app.view->form36.Picture1.picture().PixelAt(x, y); }
};

TEST_F(GeneratedImages, SameSeedSamePlasma) {
  Send("Plasma", "HScroll6", UserAction::Drag, 200);
  Press("Plasma", "cmdCreateTile");
  const auto first = Image();
  EXPECT_EQ(first[0], 0U);
  EXPECT_EQ(first[964], Rgb(200, 0, 0));
  EXPECT_EQ(first[965], 0U);  // behind the last column
  Press("Plasma", "Command1");
  Press("Plasma", "cmdCreateTile");
  EXPECT_NE(Image(), first);
  app.FindWindow("Plasma")->Find("Text5")->SetOwnValue(std::string("12345326"));
  Press("Plasma", "cmdCreateTile");
  EXPECT_EQ(Image(), first);
  EXPECT_TRUE(app.view->form36.Picture1.visible());
  app.FindWindow("Plasma")->Find("Text3")->SetOwnValue(std::string("1e300"));  // a fault: the view comes back
  Press("Plasma", "cmdCreateTile");
  EXPECT_TRUE(app.view->form36.Picture1.visible());
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
}

TEST_F(GeneratedImages, StrokesReachTheViewWhenTheyEnd) {
  const int before = ViewAt(303, 304), gray = static_cast<int>(Rgb(128, 128, 128));
  Paint(UserAction::MouseMove, 303, 304);
  EXPECT_EQ(Image()[304 * 968 + 303], 0U);
  Paint(UserAction::MouseDown, 293, 304);
  Paint(UserAction::MouseMove, 303, 304);
  EXPECT_EQ(static_cast<int>(Image()[304 * 968 + 308]), gray);
  EXPECT_EQ(ViewAt(303, 304), before);
  Paint(UserAction::MouseUp, 303, 304);
  EXPECT_EQ(ViewAt(303, 304), gray);
  PressItem("clearimage");
  EXPECT_EQ(ViewAt(303, 304), before);
  EXPECT_EQ(Image()[304 * 968 + 303], 0U);
}

TEST_F(GeneratedImages, NumberedPicturesComeBack) {
  Press("Specialeffects3", "Command4");  // all white
  Press("Specialeffects3", "Command36", MouseButton::Right);
  PressItem("clearimage");
  Press("Specialeffects3", "Command35");  // never stored
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(Image()[968 * 5 + 5], 0U);
  Press("specialeffects1", "Command36");
  EXPECT_EQ(Image()[968 * 5 + 5], Rgb(255, 255, 255));
}

TEST_F(GeneratedImages, AWallpaperThatCannotBeSavedIsTold) {
  std::filesystem::create_directories(folder() / "Plasma.bmp" / "in the way");
  Press("texture", "wallpaperme");
  EXPECT_EQ(platform.TakeMessages(), std::vector<std::string>{"Wallpaper not set."});
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
}

TEST_F(GeneratedImages, FilesGoToTheImageThatIsMeant) {
  Picture file(20, 10);
  file.backColour = Rgb(1, 2, 3);
  file.Clear();
  SavePicture(file, folder() / "a.png");
  Texture& maker = app.imaging->texture;
  const auto before = maker.Picture5.picture().Pixels();
  platform.QueueAnswer("a.png");
  Press("Form15", "Command33");
  EXPECT_EQ(maker.Picture1.picture().PixelWidth(), 20);
  EXPECT_EQ(maker.Picture5.picture().Pixels(), before);
  EXPECT_TRUE(maker.Picture1.visible());
  platform.QueueAnswer("missing.png");
  Press("Form15", "Command2");
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_FALSE(maker.Picture5.visible());
  EXPECT_EQ(AsText(app.FindWindow("Form15")->Find("Text10")->Value()), "missing.png");
  platform.QueueAnswer("b.BMP");
  Press("Form15", "Command19");
  platform.QueueAnswer("b.png");
  Press("Form15", "Command1");
  EXPECT_TRUE(std::filesystem::exists(folder() / "b.BMP"));
  EXPECT_TRUE(std::filesystem::exists(folder() / "b.png.bmp"));
  platform.QueueAnswer("b.BMP");
  PressItem("openimage");
  EXPECT_EQ(Image()[968 * 9 + 19], Rgb(1, 2, 3));
  EXPECT_EQ(Image()[968 * 9 + 20], 0U);
  EXPECT_EQ(Image()[968 * 10], 0U);
}

TEST_F(GeneratedImages, ACustomFilterIsKeptUnderItsName) {
  const auto cell = [this](int number) {
    return AsText(
        app.FindWindow("frmCustomFilter")->Find("txtValue(" + std::to_string(number) + ")")->Value());
  };
  const auto ground = [this](int number) {
    return app.imaging->frmCustomFilter.txtValue[static_cast<std::size_t>(number)]->ground();
  };
  const auto type = [this](const char* control, const char* text) {
    UserEvent event{"frmCustomFilter", control, UserAction::Type};
    event.text = text;
    app.Deliver(event);
  };
  platform.onModal = [&](Window&) {
    Press("frmCustomFilter", "cmdOK");  // only the middle: the window stays
    Send("frmCustomFilter", "cboBaseOn", UserAction::Drag, 2);
    EXPECT_EQ(ground(0), TextBox::Ground::Button);
    type("txtValue(0)", "-3x");
    EXPECT_EQ(ground(0), TextBox::Ground::Field);
    type("cboName", "mine");
    Press("frmCustomFilter", "cmdOK");
  };
  Press("texture", "customit");
  EXPECT_EQ(platform.TakeMessages(), std::vector<std::string>{"Filters must be at least 3x3 in size."});
  EXPECT_TRUE(std::filesystem::exists(folder() / "filters.txt"));
  platform.onModal = [&](Window&) { Press("frmCustomFilter", "cmdOK"); };  // the name still stands there
  Press("texture", "customit");
  platform.onModal = [&](Window&) {
    EXPECT_EQ(app.imaging->frmCustomFilter.cboName.items().size(), 1U);
    Send("frmCustomFilter", "cboBaseOn", UserAction::Drag, 1);
    EXPECT_EQ(cell(0) + " " + cell(16) + " " + cell(24), "0 0 1");
    type("cboName", "mine");
    EXPECT_EQ(cell(0) + " " + cell(16) + " " + cell(24), "-3 1 1");
    Press("frmCustomFilter", "cmdCancel");
  };
  Press("texture", "customit");
  platform.onModal = [&](Window&) { Press("frmAddNoise", "cmdCancel"); };
  const double next = RandomSeries(app.random).Next();
  Press("texture", "noisie");
  EXPECT_EQ(RandomSeries(app.random).Next(), next);
  platform.onModal = [&](Window&) { Press("frmAddNoise", "cmdOK"); };
  Press("texture", "noisie");
  EXPECT_NE(RandomSeries(app.random).Next(), next);
}

}  // namespace
}  // namespace pelorium
