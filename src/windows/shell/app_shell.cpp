// Delivers what a person does to the windows.
#include "windows/shell/app_shell.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "controls/combo_box.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "windows/shell/history.h"
#include "windows/shell/tool_window.h"

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
    MouseEvent mouse{event.x, event.y, event.click.button, event.click.keys};
    if (event.action == UserAction::MouseDown) box.heldButton = mouse.button;
    if (event.action == UserAction::MouseUp) box.heldButton = MouseButton::None;
    if (mouse.button == MouseButton::None) mouse.button = box.heldButton;
    const auto& handler = event.action == UserAction::MouseDown   ? box.onMouseDown
                          : event.action == UserAction::MouseMove ? box.onMouseMove
                                                                  : box.onMouseUp;
    if (handler) handler(mouse);
  });
}

bool Wheel(Control& control, const UserEvent& event) {
  return On<PictureBox>(control, [&](PictureBox& box) {
    constexpr double kMost = WheelEvent::kMostSteps;
    const int steps = ToInteger<int>(std::clamp(event.value, -kMost, kMost));
    if (box.onWheel) box.onWheel({steps, event.x, event.y, event.click.keys});
  });
}

Doing DoingOf(const UserEvent& event, const Window& window, const Control* control) {
  return {control, window.caption(), event.action == UserAction::Drag || event.action == UserAction::Type};
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
      return On<TextBox>(control, [&](TextBox& box) { box.Type(event.text); }) ||
             On<ComboBox>(control, [&](ComboBox& box) { box.Type(event.text); });
    case UserAction::Resize:
      return On<PictureBox>(control, [&](PictureBox& box) {
        box.isOnScreen = event.onScreen;
        box.Resize(event.width, event.height);
      });
    case UserAction::MouseDown:
    case UserAction::MouseMove:
    case UserAction::MouseUp:
      return Mouse(control, event);
    case UserAction::Wheel:
      return Wheel(control, event);
    case UserAction::CloseWindow:
      return false;
  }
  return false;
}

}  // namespace

App::App(Platform& platformToUse, const std::filesystem::path& path)
    : seenPlatform_(platformToUse,
                    [this] {
                      if (links.drawNow) links.drawNow();
                    }),
      platform(seenPlatform_),
      applicationPath(std::filesystem::absolute(path).lexically_normal()),
      history(std::make_shared<History>(*this)) {
  faults.onNote = [this](const std::string& line) { notices.Give(line, NoticeKind::Fault); };
  drawingFaults.isQuiet = true;
  drawingFaults.onNote = [this](const std::string& line) {
    auto& noted = drawingFaultsOfEvent_;
    if (std::find(noted.begin(), noted.end(), line) != noted.end()) return;
    noted.push_back(line);
    faults.NoteLine(line);
  };
  BuildWindows(*this);
}

// The windows hold pictures that end before the surface they are drawn on, which the view keeps.
App::~App() { windows_.clear(); }

void App::Start() {
  links.start();
  EndEvent();
  history->Start();
}

void App::EndEvent(bool hadFault) {
  if (hadFault) links.markStale();
  links.drawNow();
  drawingFaults.TakeAll();
  drawingFaultsOfEvent_.clear();
  ++eventsEnded;
}

void App::Keep(std::unique_ptr<Window> window, ToolWindow* toolWindow) {
  windows_.push_back(std::move(window));
  if (toolWindow != nullptr) toolWindows_.push_back(toolWindow);
}

void App::SetOrder(const std::vector<const char*>& names) {
  const auto place = [&names](const Window& window) {
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&window](const char* name) { return window.name() == name; });
    return found == names.end() ? std::prev(names.end(), 1) - names.begin() - 0.5
                                : static_cast<double>(found - names.begin());
  };
  std::stable_sort(windows_.begin(), windows_.end(),
                   [&](const auto& a, const auto& b) { return place(*a) < place(*b); });
  std::stable_sort(toolWindows_.begin(), toolWindows_.end(),
                   [&](const ToolWindow* a, const ToolWindow* b) { return place(*a) < place(*b); });
}

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
  Control* control = nullptr;
  if (event.action != UserAction::CloseWindow) {
    control = window->Find(event.control);
    if (control == nullptr || !control->enabled()) return false;
  }
  const HistoryEvent step(*history, DoingOf(event, *window, control));
  FinishTypingElsewhere(control);
  if (control != nullptr && control->kind() == ControlKind::PictureBox) {
    if (event.action == UserAction::MouseDown) history->Press(*control);
    if (event.action == UserAction::MouseUp) history->LetGo(*control);
  }
  if (event.action == UserAction::Type) typedBox_ = dynamic_cast<TextBox*>(control);
  if (onEvent) onEvent(event);
  bool applied = true;  // also when a fault ended the handler
  const std::size_t faultsBefore = faults.count();
  Trapped(faults, control == nullptr ? window->name() : control->FullName(), [&] {
    if (control == nullptr) {
      window->Close();
    } else {
      applied = DeliverTo(*control, event);
    }
  });
  EndEvent(faults.count() != faultsBefore);
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
