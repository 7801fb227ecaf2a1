// The Edit Profile window.
#include "app_fixture.h"
#include "windows/profiles/formulas2frm_profile_formulas.h"
#include "windows/profiles/formulas3frm_edit_profile_ranges.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/refresh_views.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class EditProfileWindow : public AppTest {
 protected:
  // Three points to the right of each other, 20 units above the axis.
  EditProfileWindow() {
    for (float x : {328.0f, 338.0f, 348.0f}) ClickAt(x, -298);
  }
  Vec3 Point(int i, int profile = 0) const {
    const ProfilePointRec& p = app.model.ProfilePts(i, profile);
    return {p.X, p.Y, p.Z};
  }
  void Drag(float dx, float dy, MouseButton button = MouseButton::Left) {
    UserEvent event;
    event.window = "Formulas";
    event.control = "Picture1";
    event.click.button = button;
    event.x = event.y = 50;
    event.action = UserAction::MouseDown;
    app.Deliver(event);
    event.x += dx, event.y += dy;
    event.action = UserAction::MouseMove;
    app.Deliver(event);
    event.action = UserAction::MouseUp;
    app.Deliver(event);
    event.action = UserAction::MouseMove;  // no button down: nothing
    event.x += 7;
    app.Deliver(event);
  }

  Formulas& window = app.profiles->formulas;
};

TEST_F(EditProfileWindow, RingsOfAPartComeBackAsProfiles) {
  PressItem("revolve2");
  window.HScroll18.Drag(1);
  window.HScroll25.Drag(4);
  window.Command14.Press();
  EXPECT_EQ(app.model.Profile(4).count, 36);
  EXPECT_EQ(Point(9, 4).X, app.model.Points(0, 37 + 10).X);
  window.HScroll8.Drag(2);
  window.HScroll12.Drag(6);
  window.Command9.Press();
  EXPECT_EQ(app.model.Profile(7).count, 4);
  EXPECT_EQ(Point(2, 7).Z, app.model.Points(0, 2 * 37 + 2).Z);
}

TEST_F(EditProfileWindow, GrayLevelsComeFromTheImage) {
  app.view->form36.Picture2.picture().backColour = Rgb(100, 100, 100);
  app.view->form36.Picture2.picture().Clear();
  app.model.ProfilePts(0, 0).Y = 10;
  window.Command15.Press();
  EXPECT_EQ(Point(0).Z, 25);
  app.view->form36.VScroll1.SetValue(10);  // all points above the image
  window.HScroll4.box.Type("1");
  window.Command15.Press();
  EXPECT_EQ(Point(0).Z, 25);
}

TEST_F(EditProfileWindow, OptionsOfAllProfileWindowsGoTogether) {
  app.view->form51.Option4.SetValue(true);
  app.profiles->formulas2frm.view.Option6.SetValue(true);
  EXPECT_TRUE(window.view.Option6.value());
  EXPECT_TRUE(app.view->form51.Option1.value());
  EXPECT_EQ(app.view->form36.Label54.caption(), " PROFILE VIEW--Side ");
  app.profiles->formulas3frm.view.Option8.SetValue(
      true);  // shaded in all; the profile view comes back as it was
  EXPECT_TRUE(window.view.Option8.value());
  EXPECT_TRUE(app.view->form51.Option11.value());
  app.view->form51.Option1.SetValue(true);
  EXPECT_TRUE(app.profiles->formulas2frm.view.Option6.value());
  EXPECT_EQ(app.view->form36.Label54.caption(), " PROFILE VIEW--Side ");
}

// What would run away to infinity is a fault, and the profiles stay as they were.
TEST_F(EditProfileWindow, ResultsAreFinite) {
  app.model.ProfilePts(1, 0).X = 1e300;
  app.view->form5.Text5.SetText("-1e300");
  app.profiles->formulas3frm.Text20.SetText("1e200");
  app.Deliver({"Formulas3frm", "Command35", UserAction::Press});
  EXPECT_EQ(Point(0).X, 10);
  EXPECT_EQ(Point(1).X, 1e300);
  EXPECT_EQ(app.faults.TakeAll(), (std::vector<std::string>{"Formulas3frm.Command35: overflow: inf"}));
}

}  // namespace
}  // namespace pelorium
