// The formulas window: what a press takes from its controls, and when a formula runs by itself.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/profiles/formulas2frm_profile_formulas.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class ProfileFormulasWindow : public AppTest {
 protected:
  ScrollBar& Bar(const char* name) { return dynamic_cast<ScrollBar&>(*window.Find(name)); }
  TextBox& Box(const char* name) { return dynamic_cast<TextBox&>(*window.Find(name)); }
  Vec3 Point(int i, int profile = 0) const {
    const ProfilePointRec& p = app.model.ProfilePts(i, profile);
    return {p.X, p.Y, p.Z};
  }

  Formulas2Frm& window = app.profiles->formulas2frm;
};

TEST_F(ProfileFormulasWindow, TheTextIsTheParameterAndWordsCountAsZero) {
  EXPECT_EQ(Box("Text11").text(), "10.2857142857143");
  EXPECT_EQ(Box("Text26").text(), ".36");
  Box("Text26").Type("2.5 and more");
  Box("Text25").Type("1");
  window.Command4.Press();
  EXPECT_EQ(Point(2).Z, 10);  // 2.5 * 4
  EXPECT_EQ(Bar("HScroll19").value(), 36);
  Box("Text26").Type("none");
  window.Command4.Press();
  EXPECT_EQ(Point(2).Z, 0);
  Bar("HScroll19").Drag(50);
  EXPECT_EQ(Box("Text26").text(), "0.5");
}

TEST_F(ProfileFormulasWindow, PlainFormsTakeTheBarsThemselves) {
  Box("Text20").Type("9.5");
  Box("Text33").Type("1");
  window.Command5.Press();
  EXPECT_EQ(Point(10), (Vec3{36, 300, 100}));
  window.Text13.Type("2");
  window.Command3.Press();
  EXPECT_EQ(Point(3), (Vec3{18, 66, 66}));  // 10 * 3 + 36
  window.Command15.Press();
  EXPECT_EQ(Point(2).X, 19);
}

TEST_F(ProfileFormulasWindow, EveryBarButTheProfilesRunsTheChosenFormula) {
  Bar("HScroll2").Drag(50);
  EXPECT_EQ(Point(0), Vec3{});  // none is chosen
  window.Option3.SetValue(true);
  Box("Text11").Type("0");
  Bar("HScroll3").Drag(50);
  EXPECT_EQ(Point(0), (Vec3{50, 300, 0}));
  window.Option2.SetValue(true);
  Bar("HScroll8").Drag(21);
  EXPECT_EQ(Point(1), (Vec3{20, 300, .36 * 4}));
  window.Option1.SetValue(true);
  Bar("HScroll28").Drag(7);
  EXPECT_EQ(Point(1), (Vec3{20, 7, 0}));
  window.HScroll25.Drag(4);
  EXPECT_EQ(Point(1, 4), Vec3{});
}

TEST_F(ProfileFormulasWindow, ResetTakesItsFrameBackAndRunsOnce) {
  window.Option3.SetValue(true);
  Box("Text11").Type("0");
  for (const char* name : {"HScroll2", "HScroll3", "HScroll15"}) Bar(name).Drag(9);
  window.Check2.SetValue(true);
  const double before = Point(0).X;
  window.Command9.Press();
  EXPECT_EQ(Bar("HScroll2").value(), 100);
  EXPECT_EQ(Box("Text9").text(), "100");
  EXPECT_EQ(Bar("HScroll15").value(), 9);  // of another frame
  EXPECT_EQ(Box("Text11").text(), "0");    // of the global settings
  EXPECT_EQ(Point(0).X, before + 100);
  Box("Text26").Type("4");
  window.Command12.Press();
  EXPECT_EQ(Box("Text26").text(), ".36");
  window.Command11.Press();
  EXPECT_EQ(Box("Text22").text(), "50");
}

TEST_F(ProfileFormulasWindow, AFaultEndsTheFormulaQuietly) {
  Box("Text18").Type("1e200");
  window.Command4.Press();
  EXPECT_EQ(app.faults.TakeAll().size(), 1U);
  EXPECT_EQ(app.automaticActionsHeld, 0);
  EXPECT_EQ(app.view->form51.HScroll6.value(), 36);
}

}  // namespace
}  // namespace pelorium
