// The numeric edits of Precise Edit.
#include "app_fixture.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

class PreciseEdit : public AppTest {
 protected:
  // Part 0 has `points` marked points at (15, 4, 13), in layers of `width`.
  void Lay(int points, int width) {
    for (int n = 1; n <= points; ++n) Place(n, {15, 4, 13});
    app.model.Part(0).maxpoints = static_cast<std::int16_t>(points);
    app.view->form5.HScroll25.SetValue(points);
    app.view->form5.HScroll5.SetValue(width);
  }
  void Place(int number, const Vec3& at) { CopyPosition(app.model.Points(0, number), at); }
  Vec3 At(int number) {
    const PointRec& point = app.model.Points(0, number);
    return {point.X, point.Y, point.Z};
  }
  void SetOriginOfTurns() {
    window.Text5.SetText("10");
    window.Text9.SetText("-3");
    window.Text3.SetText("2");
  }
  void Press(const std::string& name, MouseButton button = MouseButton::Left) {
    UserEvent event{"Form5", name};
    event.click.button = button;
    EXPECT_TRUE(app.Deliver(event)) << name;
  }
  void ExpectRange(int first, int last) {
    EXPECT_EQ(PointRangeStart(app), first);
    EXPECT_EQ(PointRangeEnd(app), last);
  }
  static constexpr MouseButton kRight = MouseButton::Right;

  Form5& window = app.view->form5;
};

TEST_F(PreciseEdit, MovesByTheTextInSteps) {
  Lay(3, 3);
  app.model.Faces(0, 1).corner2pt = 3;
  app.model.Part(0).maxfaces = 1;
  window.HScroll10.box.Type("1.25");
  EXPECT_EQ(window.HScroll10.value(), 1);
  window.HScroll9.SetValue(2);
  for (const char* name : {"Command53", "Command55", "Command55", "Command31"}) Press(name);
  EXPECT_EQ(At(3), (Vec3{16.25, 6.5, 14.25}));
  EXPECT_EQ(At(2), (Vec3{15, 4, 13}));
  EXPECT_EQ(app.model.Faces(0, 1).c2X, 16.25);
  for (const char* name : {"Command53", "Command55", "Command55", "Command31"}) Press(name, kRight);
  EXPECT_EQ(At(1), (Vec3{15, 4, 13}));
  window.HScroll25.SetValue(0);
  Press("Command53");
  EXPECT_EQ(At(1), (Vec3{15, 4, 13}));
}

TEST_F(PreciseEdit, ProgressiveTurnsGrowFromLayerToLayer) {
  Lay(9, 2);
  window.Text19.Type("30");
  window.HScroll1.SetValue(1);
  window.HScroll2.SetValue(3);
  for (const auto& [button, isSpin] : {std::pair{"Command5", true}, {"Command6", false}}) {
    for (int n = 1; n <= 9; ++n) Place(n, {1, 0, 0});
    const auto turned = [spin = isSpin](double x, double far) {
      return spin ? Vec3{x, far, 0} : Vec3{x, 0, -far};
    };
    Press(button);
    EXPECT_EQ(At(2), (Vec3{1, 0, 0}));
    EXPECT_EQ(At(3), turned(0.8660254415835856, 0.49999993452995123)) << button;
    EXPECT_EQ(At(6), turned(0.500000130940089, 0.8660253281861299)) << button;
    EXPECT_EQ(At(8), turned(2.2679489670180013e-07, 0.9999999999999742)) << button;
    EXPECT_EQ(At(9), (Vec3{1, 0, 0}));
  }
  window.HScroll5.SetValue(0);
  Press("Command14");
  const auto faults = app.faults.TakeAll();
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_TRUE(faults[0].starts_with("Form5.Command14: ")) << faults[0];
}

TEST_F(PreciseEdit, FlipsAndSetsEqual) {
  Lay(1, 1);
  SetOriginOfTurns();
  Press("Command4");
  EXPECT_EQ(At(1), (Vec3{5, 4, 13}));
  Press("Command4", kRight);
  EXPECT_EQ(At(1), (Vec3{15, 4, 13}));
  window.Option1.SetValue(true);
  Press("Command4");
  EXPECT_EQ(At(1), (Vec3{15, 4, -9}));
  Press("Command3");  // X=Y
  EXPECT_EQ(At(1), (Vec3{4, 4, -9}));
  window.Option5.SetValue(true);
  Press("Command3", kRight);
  EXPECT_EQ(At(1), (Vec3{4, 4, 4}));
  Place(1, {15, 4, 13});
  window.Option6.SetValue(true);
  Press("Command3");
  EXPECT_EQ(At(1), (Vec3{15, 13, 13}));
}

TEST_F(PreciseEdit, PointRangeShiftsWithinThePart) {
  Lay(10, 4);
  window.HScroll20.SetValue(2);
  window.HScroll25.SetValue(6);
  Press("Command8");
  ExpectRange(6, 10);
  Press("Command8");
  ExpectRange(6, 10);
  Press("Command7");
  Press("Command7");
  ExpectRange(2, 6);
}

TEST_F(PreciseEdit, LayersShiftAndChooseTheirPoints) {
  Lay(10, 4);
  app.view->form5.HScroll20.SetMax(10);
  app.view->form5.HScroll25.SetMax(10);
  window.HScroll2.SetValue(1);
  Press("Command11");
  EXPECT_EQ(window.HScroll1.value(), 0);
  Press("Command13");
  ExpectRange(5, 10);
  window.HScroll1.SetValue(34);
  window.HScroll2.SetValue(35);
  Press("Command13");
  Press("Command13");
  EXPECT_EQ(window.HScroll1.box.text(), "35");
  EXPECT_EQ(window.HScroll2.box.text(), "36");
  ExpectRange(141, 10);  // far past the Part: none
  EXPECT_TRUE(app.faults.TakeAll().empty());
}

}  // namespace
}  // namespace pelorium
