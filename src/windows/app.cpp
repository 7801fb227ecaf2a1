// Builds all windows and delivers what a person does to their controls.
#include "windows/app.h"

#include <utility>

#include "base/numbers.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/rich_text_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/edit_by_face.h"
#include "windows/form14.h"
#include "windows/form31.h"
#include "windows/form36.h"
#include "windows/form5.h"
#include "windows/form51.h"
#include "windows/formulas.h"
#include "windows/frm_about.h"
#include "windows/frm_splash.h"
#include "windows/help_me.h"
#include "windows/mdi_form1.h"
#include "windows/revolve_prof.h"

namespace pelorium {

namespace {

template <typename Kind, typename Act>
bool On(Control& control, Act act) {
  auto* kind = dynamic_cast<Kind*>(&control);
  if (kind != nullptr) act(*kind);
  return kind != nullptr;
}

bool Drag(Control& control, double value) {
  return On<ScrollBar>(control, [&](ScrollBar& bar) { bar.Drag(value); }) ||
         On<ListBox>(control, [&](ListBox& list) { list.Pick(ToInteger<int>(value)); });
}

bool Mouse(Control& control, const UserEvent& event) {
  return On<PictureBox>(control, [&](PictureBox& box) {
    const MouseEvent mouse{event.x, event.y, event.click.button, event.click.keys};
    const auto& handler = event.action == UserAction::MouseDown   ? box.onMouseDown
                          : event.action == UserAction::MouseMove ? box.onMouseMove
                                                                  : box.onMouseUp;
    if (handler) handler(mouse);
  });
}

// False when the event does not apply to that kind of control.
bool DeliverTo(Control& control, const UserEvent& event) {
  switch (event.action) {
    case UserAction::Press:
      control.Press(event.click);
      return true;
    case UserAction::DoubleClick:
      control.DoubleClick();
      return true;
    case UserAction::Key:
      control.Key(event.text.empty() ? '\0' : event.text.front());
      return true;
    case UserAction::Drag:
      return Drag(control, event.value);
    case UserAction::Type:
      return On<TextBox>(control, [&](TextBox& box) { box.Type(event.text); });
    case UserAction::Resize:
      return On<PictureBox>(control, [&](PictureBox& box) { box.Resize(event.width, event.height); });
    case UserAction::MouseDown:
    case UserAction::MouseMove:
    case UserAction::MouseUp:
      return Mouse(control, event);
    case UserAction::CloseWindow:
      return false;
  }
  return false;
}

}  // namespace

template <typename WindowType>
WindowType& App::Add() {
  windows_.push_back(std::make_unique<WindowType>(*this));
  return static_cast<WindowType&>(*windows_.back());
}

App::App(Platform& platformToUse, const std::filesystem::path& path)
    : platform(platformToUse),
      applicationPath(std::filesystem::absolute(path).lexically_normal()),
      frmSplash(Add<FrmSplash>()),
      mdiForm1(Add<MDIForm1>()),
      form51(Add<Form51>()),
      form5(Add<Form5>()),
      formulas(Add<Formulas>()),
      editbyface(Add<EditByFace>()),
      revolveprof(Add<RevolveProf>()),
      form31(Add<Form31>()),
      form14(Add<Form14>()),
      helpme(Add<HelpMe>()),
      frmAbout(Add<FrmAbout>()),
      form36(Add<Form36>()) {}

App::~App() = default;

void App::Start() { mdiForm1.Load(); }

bool App::Deliver(const UserEvent& event) {
  Window* window = FindWindow(event.window);
  if (window == nullptr) return false;
  if (event.action == UserAction::CloseWindow) {
    if (onEvent) onEvent(event);
    Trapped(faults, window->name(), [window] { window->Close(); });
    return true;
  }
  Control* control = window->Find(event.control);
  if (control == nullptr || !control->enabled()) return false;
  if (onEvent) onEvent(event);
  bool applied = true;  // also when a fault ended the handler
  Trapped(faults, control->FullName(), [&] { applied = DeliverTo(*control, event); });
  return applied;
}

std::vector<Window*> App::windows() const {
  std::vector<Window*> all;
  for (const auto& window : windows_) all.push_back(window.get());
  return all;
}

Window* App::FindWindow(std::string_view name) const {
  for (const auto& window : windows_) {
    if (window->name() == name) return window.get();
  }
  return nullptr;
}

}  // namespace pelorium
