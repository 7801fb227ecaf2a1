// A seeded random walk over every control and the view: nothing may break the tables' invariants or leave a
// handler.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "app_fixture.h"
#include "base/random_series.h"
#include "windows/form36_view.h"

namespace pelorium {
namespace {

class Monkey : public AppTest {
 protected:
  // File names typed at random lead nowhere but into the test's own folder.
  Monkey() : old_(std::filesystem::current_path()) { std::filesystem::current_path(folder()); }
  ~Monkey() override { std::filesystem::current_path(old_); }

  int Below(int limit) { return static_cast<int>(series.Next() * limit); }

  template <typename List>
  auto& OneOf(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
  }

  UserEvent Doing() {
    const auto windows = app.windows();
    const Window* window = OneOf(windows);
    static const std::vector<std::string> kBusy = {"revolveprof", "Form55",       "freeface",
                                                   "Formulas",    "Formulas2frm", "Formulas3frm"};
    if (Below(2) == 0) window = app.FindWindow(OneOf(kBusy));
    const Control* control = OneOf(window->controls());
    UserEvent event;
    event.window = window->name();
    event.control = control->name();
    event.click.button = Below(2) == 0 ? MouseButton::Left : MouseButton::Right;
    switch (control->kind()) {
      case ControlKind::ScrollBar:
        event.action = UserAction::Drag;
        event.value = Below(30000) - 15000;
        if (Below(2) == 0) event.value = Below(40);
        break;
      case ControlKind::TextBox: {
        static const std::vector<std::string> kTexts = {"",    "-1",    "3.5x", "1e999", "36",
                                                        "nan", "99999", "0",    "1e-9"};
        event.action = UserAction::Type;
        event.text = OneOf(kTexts);
        break;
      }
      case ControlKind::PictureBox:
        event.action = static_cast<UserAction>(static_cast<int>(UserAction::MouseDown) + Below(3));
        event.x = static_cast<float>(Below(1200) - 100);
        event.y = static_cast<float>(100 - Below(900));
        if (Below(50) == 0) {
          event.action = UserAction::Resize;
          event.width = Below(1200), event.height = Below(900);
        }
        break;
      default:
        event.action = Below(9) == 0 ? UserAction::DoubleClick : UserAction::Press;
    }
    return event;
  }

  void ExpectInvariants(int step) {
    for (int part = 0; part < kParts; ++part) {
      const PartHeader& p = app.model.Part(part);
      ASSERT_TRUE(p.maxfaces >= -1 && p.maxfaces <= kMaxFaces) << "step " << step;
      ASSERT_TRUE(p.maxpoints >= 0 && p.maxpoints <= kMaxPoints) << "step " << step;
      for (const FaceRec& f : FaceRange(app.model, part, 1, p.maxfaces)) {
        ASSERT_TRUE(f.corner1pt >= 1 && f.corner2pt >= 1 && f.corner3pt >= 1 && f.corner1pt <= kMaxPoints &&
                    f.corner2pt <= kMaxPoints && f.corner3pt <= kMaxPoints && f.group >= 0 &&
                    f.group <= kMaxGroup)
            << "step " << step;
      }
    }
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      const int count = app.model.Profile(profile).count;
      ASSERT_TRUE(count >= 0 && count <= kMaxLayer) << "step " << step;
    }
    ASSERT_EQ(app.automaticActionsHeld, 0) << "step " << step;
  }

  RandomSeries series;

 private:
  std::filesystem::path old_;
};

TEST_F(Monkey, WalksOverEveryControl) {
  // PELORIUM_MONKEY_STEPS asks for a longer walk by hand.
  const char* asked = std::getenv("PELORIUM_MONKEY_STEPS");
  const int steps = asked != nullptr ? std::atoi(asked) : 3000;
  for (int step = 0; step < steps; ++step) {
    platform.QueueAnswer(Below(2) == 0 ? "" : (folder() / ("file" + std::to_string(Below(4)))).string());
    app.Deliver(Doing());
    ASSERT_NO_FATAL_FAILURE(ExpectInvariants(step));
    if (step % 10 == 0) app.form36.Picture1.picture.Pixels();
  }
}

}  // namespace
}  // namespace pelorium
