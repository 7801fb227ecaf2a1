// Events at random over every control and the view, from a seed.
#pragma once

#include <string>
#include <vector>

#include "base/random_series.h"
#include "graphics/gl_recorder.h"
#include "windows/app_fixture.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/view_windows.h"

namespace pelorium {

// Takes the calls of the shaded view and shows nothing: the drawing itself is the driver's.
class BlindSurface : public GlSurface {
 public:
  Gl* Begin(int, int) override {
    calls_.Restart();
    return &calls_;
  }
  void ReadBack(std::uint32_t*, int, int) override {}

 private:
  GlRecorder calls_;
};

// The parameter is the seed.
class Monkey : public AppTest, public testing::WithParamInterface<int> {
 protected:
  // File names typed at random lead nowhere but into the test's own folder.
  Monkey() : old_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder());
    series.Seed(GetParam());
    app.openGl = [] { return std::make_unique<BlindSurface>(); };
  }
  ~Monkey() override { std::filesystem::current_path(old_); }

  int Below(int limit) { return static_cast<int>(series.Next() * limit); }

  template <typename List>
  auto& OneOf(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
  }

  const Control& AnyControl() {
    static const std::vector<std::string> kBusy = {
        "Form36",   "Form5",    "specialeffects1", "specialeffects5", "Form51",     "revolveprof", "Form55",
        "freeface", "Formulas", "Formulas2frm",    "Formulas3frm",    "editbyface", "unfold"};
    const auto windows = app.windows();
    const Window* window = Below(4) == 0 ? OneOf(windows) : app.FindWindow(OneOf(kBusy));
    return *OneOf(window->controls());
  }

  // Drags over the view, in short steps and long ones, beyond its edges and with no press before.
  void PointAt(UserEvent& event) {
    const int what = Below(12);
    event.action = what == 0   ? UserAction::MouseDown
                   : what == 1 ? UserAction::MouseUp
                               : UserAction::MouseMove;
    x_ = Below(9) == 0 ? static_cast<float>(Below(1400) - 200) : x_ + static_cast<float>(Below(41) - 20) / 2;
    y_ = Below(9) == 0 ? static_cast<float>(200 - Below(1100)) : y_ + static_cast<float>(Below(41) - 20) / 2;
    event.x = Below(200) == 0 ? 1e9F : x_;
    event.y = y_;
    if (Below(60) == 0) {
      static const std::vector<std::string> kKeys = {"m", "r", "s", "p", "o", "-", "x"};
      event.action = UserAction::Key;
      event.text = OneOf(kKeys);
    } else if (Below(200) == 0) {
      event.action = UserAction::Resize;
      event.width = 1 + Below(Below(3) == 0 ? 1 : 1200), event.height = 1 + Below(900);
    }
  }

  UserEvent Doing() {
    const Control& control = Below(3) == 0 ? app.view->form36.Picture1 : AnyControl();
    UserEvent event;
    event.window = control.owner().name();
    event.control = control.name();
    event.click.button = Below(2) == 0 ? MouseButton::Left : MouseButton::Right;
    event.click.keys.shift = Below(6) == 0;
    switch (control.kind()) {
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
        PointAt(event);
        break;
      default:
        event.action = Below(9) == 0 ? UserAction::DoubleClick : UserAction::Press;
    }
    return event;
  }

  RandomSeries series;

 private:
  float x_ = 400, y_ = -300;
  std::filesystem::path old_;
};

}  // namespace pelorium
