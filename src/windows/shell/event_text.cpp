// Events as script lines.
#include "windows/shell/event_text.h"

#include "base/numbers.h"

namespace pelorium {

namespace {

// " right shift ctrl alt", as far as they apply; the left button goes without saying but on a mouse event.
std::string ClickWords(const Click& click, bool sayLeft) {
  std::string words;
  if (click.IsRight()) {
    words += " right";
  } else if (sayLeft && click.button == MouseButton::Left) {
    words += " left";
  }
  if (click.keys.shift) words += " shift";
  if (click.keys.ctrl) words += " ctrl";
  if (click.keys.alt) words += " alt";
  return words;
}

std::string MouseLine(const char* what, const std::string& place, const UserEvent& event) {
  return "mouse " + place + " " + what + " " + ShortestForm(event.x) + " " + ShortestForm(event.y) +
         ClickWords(event.click, true);
}

}  // namespace

std::string ScriptWord(const std::string& text) {
  const bool plain =
      !text.empty() && text[0] != '#' && text.find_first_of(" \t\"\\\r\n") == std::string::npos;
  if (plain) return text;
  std::string word = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') word += '\\';
    word += c == '\n' || c == '\r' ? ' ' : c;
  }
  return word + "\"";
}

std::string ScriptLine(const UserEvent& event) {
  const std::string place = event.window + "." + event.control;
  switch (event.action) {
    case UserAction::Press:
      return "press " + place + ClickWords(event.click, false);
    case UserAction::Drag:
      return "drag " + place + " " + ShortestForm(event.value);
    case UserAction::Type:
      return "type " + place + " " + ScriptWord(event.text);
    case UserAction::DoubleClick:
      return "doubleclick " + place;
    case UserAction::Key:
      return "key " + place + " " + ScriptWord(event.text);
    case UserAction::MouseDown:
      return MouseLine("down", place, event);
    case UserAction::MouseMove:
      return MouseLine("move", place, event);
    case UserAction::MouseUp:
      return MouseLine("up", place, event);
    case UserAction::Wheel:
      return "wheel " + place + " " + ShortestForm(event.value) + " " + ShortestForm(event.x) + " " +
             ShortestForm(event.y) + ClickWords(event.click, false);
    case UserAction::Resize:
      return "resize " + place + " " + std::to_string(event.width) + " " + std::to_string(event.height) +
             (event.onScreen ? " screen" : "");
    case UserAction::CloseWindow:
      return "set " + event.window + ".visible 0";
  }
  return {};
}

}  // namespace pelorium
