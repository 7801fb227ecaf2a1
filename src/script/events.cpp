// Words to events.
#include "script/events.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include "base/numbers.h"
#include "controls/lists.h"
#include "script/places.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

// "right shift ctrl alt", each at most once, in any order.
Click ClickOf(std::span<const std::string> words) {
  Click click;
  bool hasButton = false;
  const auto once = [](bool& held, const std::string& word) {
    if (held) throw ScriptError(word + " stands twice");
    held = true;
  };
  for (const std::string& word : words) {
    if (word == "left" || word == "right") {
      if (hasButton) throw ScriptError("two mouse buttons");
      hasButton = true;
      click.button = word == "left" ? MouseButton::Left : MouseButton::Right;
    } else if (word == "shift") {
      once(click.keys.shift, word);
    } else if (word == "ctrl") {
      once(click.keys.ctrl, word);
    } else if (word == "alt") {
      once(click.keys.alt, word);
    } else {
      throw ScriptError(Quoted(word) + " is none of left, right, shift, ctrl, alt");
    }
  }
  return click;
}

void ReadPress(UserEvent& event, std::span<const std::string> words) { event.click = ClickOf(words); }

void ReadDrag(UserEvent& event, std::span<const std::string> words) {
  event.value = NumberWord(words[0], "value");
}

void ReadType(UserEvent& event, std::span<const std::string> words) { event.text = words[0]; }

void ReadNothing(UserEvent&, std::span<const std::string>) {}

void ReadKey(UserEvent& event, std::span<const std::string> words) {
  if (words[0].size() != 1) throw ScriptError("key takes one character, not " + Quoted(words[0]));
  event.text = words[0];
}

void ReadMouse(UserEvent& event, std::span<const std::string> words) {
  if (words[0] == "down") {
    event.action = UserAction::MouseDown;
  } else if (words[0] == "move") {
    event.action = UserAction::MouseMove;
  } else if (words[0] == "up") {
    event.action = UserAction::MouseUp;
  } else {
    throw ScriptError(Quoted(words[0]) + " is none of down, move, up");
  }
  event.x = SingleWord(words[1], "X");
  event.y = SingleWord(words[2], "Y");
  const std::span<const std::string> how = words.subspan(3);
  event.click = ClickOf(how);
  const bool saysButton = std::any_of(
      how.begin(), how.end(), [](const std::string& word) { return word == "left" || word == "right"; });
  if (event.action == UserAction::MouseMove && !saysButton) event.click.button = MouseButton::None;
}

void ReadWheel(UserEvent& event, std::span<const std::string> words) {
  event.value = NumberWord(words[0], "steps");
  if (event.value != RoundHalfEven(event.value)) throw ScriptError("steps must be whole, not " + words[0]);
  event.x = SingleWord(words[1], "X");
  event.y = SingleWord(words[2], "Y");
  event.click = ClickOf(words.subspan(3));
}

int SideOf(const std::string& word, const char* what) {
  const int side = IntegerWord(word, what);
  if (side <= 0) throw ScriptError(std::string(what) + " must be above 0, not " + word);
  return side;
}

void ReadResize(UserEvent& event, std::span<const std::string> words) {
  event.width = SideOf(words[0], "width");
  event.height = SideOf(words[1], "height");
  if (words.size() < 3) return;
  if (words[2] != "screen") throw ScriptError("a size may end with screen, not " + words[2]);
  event.onScreen = true;
}

struct Verb {
  std::string_view name;
  UserAction action;
  std::string_view usage;
  std::size_t least, most;  // words after the control
  void (*read)(UserEvent& event, std::span<const std::string> words);
};

constexpr Verb kVerbs[] = {
    {"press", UserAction::Press, "CONTROL [left|right] [shift] [ctrl] [alt]", 0, 4, ReadPress},
    {"drag", UserAction::Drag, "CONTROL VALUE", 1, 1, ReadDrag},
    {"type", UserAction::Type, "CONTROL TEXT", 1, 1, ReadType},
    {"doubleclick", UserAction::DoubleClick, "CONTROL", 0, 0, ReadNothing},
    {"key", UserAction::Key, "CONTROL CHAR", 1, 1, ReadKey},
    {"mouse", UserAction::MouseMove, "PICTURE down|move|up X Y [left|right] [shift] [ctrl] [alt]", 3, 7,
     ReadMouse},
    {"wheel", UserAction::Wheel, "PICTURE STEPS X Y [shift] [ctrl]", 3, 5, ReadWheel},
    {"resize", UserAction::Resize, "PICTURE W H [screen]", 2, 3, ReadResize},
};

const Verb* FindVerb(std::string_view name) {
  const auto found = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                  [name](const Verb& verb) { return verb.name == name; });
  return found == std::end(kVerbs) ? nullptr : found;
}

bool IsOneOf(ControlKind kind, std::initializer_list<ControlKind> kinds) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

bool IsList(const Control& control) {
  return IsOneOf(control.kind(),
                 {ControlKind::ListBox, ControlKind::FileList, ControlKind::DirList, ControlKind::ComboBox});
}

bool CanBePressed(const Control& control) {
  const bool isButton =
      IsOneOf(control.kind(), {ControlKind::PushButton, ControlKind::CheckBox, ControlKind::OptionButton,
                               ControlKind::MenuItem, ControlKind::Label, ControlKind::Frame});
  return isButton || IsList(control) || control.onClick != nullptr;
}

bool CanBeDoubleClicked(const Control& control) {
  return !IsOneOf(control.kind(), {ControlKind::ScrollBar, ControlKind::ProgressBar, ControlKind::MenuItem});
}

bool TakesKeys(const Control& control) {
  const bool neverHasTheFocus = IsOneOf(control.kind(), {ControlKind::Label, ControlKind::Frame,
                                                         ControlKind::ProgressBar, ControlKind::MenuItem});
  return !neverHasTheFocus || control.onKey != nullptr;
}

// Whether the doing is one for this kind of control.
bool Applies(UserAction action, const Control& control) {
  switch (action) {
    case UserAction::Press:
      return CanBePressed(control);
    case UserAction::Drag:
      return control.kind() == ControlKind::ScrollBar || IsList(control);
    case UserAction::Type:
      return IsOneOf(control.kind(), {ControlKind::TextBox, ControlKind::RichTextBox, ControlKind::ComboBox});
    case UserAction::DoubleClick:
      return CanBeDoubleClicked(control);
    case UserAction::Key:
      return TakesKeys(control);
    case UserAction::MouseDown:
    case UserAction::MouseMove:
    case UserAction::MouseUp:
    case UserAction::Wheel:
    case UserAction::Resize:
      return control.kind() == ControlKind::PictureBox;
    case UserAction::CloseWindow:
      return false;
  }
  return false;
}

std::string_view VerbOf(UserAction action) {
  if (action == UserAction::MouseDown || action == UserAction::MouseUp) action = UserAction::MouseMove;
  for (const Verb& verb : kVerbs) {
    if (verb.action == action) return verb.name;
  }
  return "close";
}

void CheckEntry(const Control& control, double value) {
  const auto* list = dynamic_cast<const ListBox*>(&control);
  if (list == nullptr) return;
  const bool isEntry =
      value == RoundHalfEven(value) && value >= 0 && value < static_cast<double>(list->items().size());
  if (!isEntry) throw ScriptError(control.FullName() + " has no entry " + ShortestForm(value));
}

}  // namespace

UserEvent EventOf(const Words& line) {
  const Verb* verb = line.empty() ? nullptr : FindVerb(line[0]);
  if (verb == nullptr) throw ScriptError("no event");
  const std::string usage = "the command is " + line[0] + " " + std::string(verb->usage);
  if (line.size() < 2 + verb->least || line.size() > 2 + verb->most) throw ScriptError(usage);
  UserEvent event;
  event.action = verb->action;
  const std::size_t point = line[1].find('.');
  event.window = line[1].substr(0, point);
  if (point != std::string::npos) event.control = line[1].substr(point + 1);
  verb->read(event, std::span(line).subspan(2));
  return event;
}

void CheckPossible(const App& app, const UserEvent& event) {
  const Control& control = FindControl(app, event.window + "." + event.control);
  if (!Applies(event.action, control)) {
    throw ScriptError(std::string(VerbOf(event.action)) + " does nothing to " + control.FullName() + ", a " +
                      std::string(ControlKindName(control.kind())));
  }
  if (!control.enabled()) throw ScriptError(control.FullName() + " is disabled");
  if (event.action == UserAction::Drag) CheckEntry(control, event.value);
}

}  // namespace pelorium
