// Boxes beside bars: what is typed, what counts, what shows when the typing is over.
#include "app_fixture.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class TypedBoxes : public AppTest {
 protected:
  void Type(const std::string& box, const std::string& text) {
    const std::size_t dot = box.find('.');
    UserEvent event{box.substr(0, dot), box.substr(dot + 1), UserAction::Type};
    event.text = text;
    EXPECT_TRUE(app.Deliver(event)) << box;
  }
  void Press(const std::string& window, const std::string& control) {
    EXPECT_TRUE(app.Deliver({window, control, UserAction::Press})) << control;
  }
};

TEST_F(TypedBoxes, AFractionIsWhatThePressUses) {
  ClickAt(368, -398);
  Type("Formulas.Text33", "12.5");
  EXPECT_EQ(app.profiles->formulas.HScroll28.value(), 12);
  EXPECT_EQ(app.profiles->formulas.HScroll28.box.text(), "12.5");
  Press("Formulas", "Command16");
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 12.5);
  Type("Form55.Text36", "7.25");  // a setting of a layer
  EXPECT_EQ(app.model.ProfilePts(0, 0).moveX, 7.25);
  Type("revolveprof.Text27", "1.234");  // hundredths
  EXPECT_EQ(app.model.Profile(0).genMultX, 1.234);
}

TEST_F(TypedBoxes, OutOfRangeTheLimitCountsAndShowsOnceTheTypingIsOver) {
  TextBox& box = app.profiles->formulas.HScroll28.box;
  Type("Formulas.Text33", "-");  // the start of -12
  EXPECT_EQ(box.text(), "-");
  Type("Formulas.Text33", "-12");
  EXPECT_EQ(app.profiles->formulas.HScroll28.value(), -12);
  Type("Formulas.Text33", "2000");
  EXPECT_EQ(box.text(), "2000");
  EXPECT_EQ(box.Number(), 1500);
  Press("Formulas", "Command16");  // another control's event
  EXPECT_EQ(box.text(), "1500");
  EXPECT_EQ(app.model.ProfilePts(0, 0).Z, 1500);
  Type("Form51.Text3", "7");  // the Part's number
  EXPECT_EQ(app.view->form51.HScroll4.value(), 1);
  app.Deliver({"Form51", "", UserAction::CloseWindow});
  EXPECT_EQ(app.view->form51.HScroll4.box.text(), "1");
}

TEST_F(TypedBoxes, ANumberTooLargeIsNone) {
  Type("Form5.Text5", "1e400");
  EXPECT_EQ(app.view->form36.Label54.caption(), " PROFILE VIEW--Front ");
  EXPECT_EQ(app.view->form36.Picture1.picture().PixelAt(318, 310),
            static_cast<int>(Rgb(0, 0, 255)));  // the cross at 0
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

// A range typed far past its bar's ends is held to them before anything loops over it.
TEST_F(TypedBoxes, RangesOfTheRevolveAreHeld) {
  ClickAt(368, -398);
  ClickAt(378, -368);
  Type("revolveprof.Text6", "2000000000");
  Type("revolveprof.Text43", "0");
  Press("revolveprof", "Command15");
  EXPECT_EQ(app.model.Part(0).Sections, 36);
  Type("revolveprof.Text33", "-1e9");
  Type("revolveprof.Text34", "1e9");
  Press("revolveprof", "Command15");
  EXPECT_EQ(app.model.Part(0).maxpoints, 3 * 37 + 1);
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
