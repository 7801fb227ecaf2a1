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
#include "windows/editbyface_face_info.h"
#include "windows/form14_obj_files.h"
#include "windows/form31_project_files.h"
#include "windows/form36_view.h"
#include "windows/form51_view_options.h"
#include "windows/form55_extrude_profile.h"
#include "windows/form5_precise_edit.h"
#include "windows/formulas2frm_profile_formulas.h"
#include "windows/formulas3frm_edit_profile_ranges.h"
#include "windows/formulas_edit_profile.h"
#include "windows/freeface_free_faces.h"
#include "windows/frm_about.h"
#include "windows/frm_splash.h"
#include "windows/frmsaveprof_profile_files.h"
#include "windows/help_me.h"
#include "windows/mdi_form1.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shaded_view.h"
#include "windows/specialeffects1_special_effects.h"
#include "windows/specialeffects5_edit_geometry.h"

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
      shadedView(std::make_unique<ShadedView>(*this)),
      frmSplash(Add<FrmSplash>()),
      mdiForm1(Add<MDIForm1>()),
      form51(Add<Form51>()),
      form5(Add<Form5>()),
      formulas(Add<Formulas>()),
      formulas2frm(Add<Formulas2Frm>()),
      formulas3frm(Add<Formulas3Frm>()),
      frmsaveprof(Add<FrmSaveProf>()),
      editbyface(Add<EditByFace>()),
      revolveprof(Add<RevolveProf>()),
      form55(Add<Form55>()),
      freeface(Add<FreeFace>()),
      specialeffects1(Add<SpecialEffects1>()),
      specialeffects5(Add<SpecialEffects5>()),
      form31(Add<Form31>()),
      form14(Add<Form14>()),
      helpme(Add<HelpMe>()),
      frmAbout(Add<FrmAbout>()),
      form36(Add<Form36>()) {
  faults.onNote = [this](const std::string& line) { notices.Give(line, NoticeKind::Fault); };
}

App::~App() = default;

void App::Start() { mdiForm1.Load(); }

// A typed number that its bar cannot take gives way to the one that it takes.
void App::FinishTypingElsewhere(const Control* control) {
  if (typedBox_ == nullptr || typedBox_ == control) return;
  std::exchange(typedBox_, nullptr)->FinishTyping();
}

void App::ReloadFileLists() {
  for (const auto& window : windows_) window->ReloadFileLists();
}

bool App::Deliver(const UserEvent& event) {
  Window* window = FindWindow(event.window);
  if (window == nullptr) return false;
  if (event.action == UserAction::CloseWindow) {
    FinishTypingElsewhere(nullptr);
    if (onEvent) onEvent(event);
    Trapped(faults, window->name(), [window] { window->Close(); });
    return true;
  }
  Control* control = window->Find(event.control);
  if (control == nullptr || !control->enabled()) return false;
  FinishTypingElsewhere(control);
  if (event.action == UserAction::Type) typedBox_ = dynamic_cast<TextBox*>(control);
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
