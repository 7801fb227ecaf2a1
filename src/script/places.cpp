// Finding windows, controls and their properties, and sending other places on to the tables and shared
// values.
#include "script/places.h"

#include <optional>

#include "controls/picture_box.h"
#include "controls/properties.h"
#include "script/parser.h"
#include "script/table_places.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

constexpr std::string_view kPixel = "pixel(";

// A text "A.B.C" taken apart at its first two points. What follows them may hold more.
struct DottedName {
  std::string window, control, property;
};

DottedName TakeApart(const std::string& text) {
  DottedName name;
  const std::size_t first = text.find('.');
  name.window = text.substr(0, first);
  if (first == std::string::npos) return name;
  const std::size_t second = text.find('.', first + 1);
  name.control = text.substr(first + 1, second == std::string::npos ? second : second - first - 1);
  if (second != std::string::npos) name.property = text.substr(second + 1);
  return name;
}

[[noreturn]] void RefuseToSet(const std::string& what) { throw ScriptError(what + " cannot be set"); }

// The word as the kind of value that the place holds.
PropertyValue Matching(const PropertyValue& present, const std::string& word) {
  if (std::holds_alternative<std::string>(present)) return word;
  return NumberWord(word, "value");
}

// A control's or window's property.
template <typename Owner>
Place PropertyPlace(Owner& owner, const std::string& text, const std::string& property) {
  if (!GetProperty(owner, property)) throw ScriptError("there is no property " + text);
  const auto get = [&owner, property] { return *GetProperty(owner, property); };
  return {get, [&owner, text, property, get](const std::string& word) {
            if (!SetProperty(owner, property, Matching(get(), word))) RefuseToSet(text);
          }};
}

Place OwnValuePlace(Control& control, const std::string& text) {
  return {[&control] { return control.Value(); },
          [&control, text](const std::string& word) {
            if (control.kind() == ControlKind::PictureBox) RefuseToSet(text);
            control.SetOwnValue(Matching(control.Value(), word));
          }};
}

Place PixelPlace(const Control& control, const std::string& text, const std::string& property) {
  const auto* box = dynamic_cast<const PictureBox*>(&control);
  if (box == nullptr) throw ScriptError(control.FullName() + " is not a picture");
  const std::optional<Subscripted> pixel = ParseSubscripts(property);
  if (!pixel || pixel->subscripts.size() != 2 || !pixel->field.empty()) {
    throw ScriptError("a pixel is spelt pixel(x,y), not " + property);
  }
  const int x = pixel->subscripts[0], y = pixel->subscripts[1];
  return {[box, x, y] { return static_cast<double>(box->picture().PixelAt(x, y)); },
          [text](const std::string&) { RefuseToSet(text); }};
}

Place ControlPlace(Control& control, const std::string& text, const std::string& property) {
  if (text.ends_with('.')) throw ScriptError("there is no property " + text);
  if (property.empty()) return OwnValuePlace(control, text);
  if (property.starts_with(kPixel)) return PixelPlace(control, text, property);
  return PropertyPlace(control, text, property);
}

Place WindowPlace(Window& window, const std::string& text, const DottedName& name) {
  if (name.control.empty()) throw ScriptError(text + " is a window; name a control or a property of it");
  if (Control* control = window.Find(name.control)) return ControlPlace(*control, text, name.property);
  if (name.property.empty() && !text.ends_with('.') && GetProperty(window, name.control)) {
    return PropertyPlace(window, text, name.control);
  }
  throw ScriptError("there is no control " + window.name() + "." + name.control);
}

}  // namespace

Place FindPlace(App& app, const std::string& text) {
  if (std::optional<Place> place = FindTablePlace(app, text)) return *place;
  if (std::optional<Place> place = FindSharedPlace(app, text)) return *place;
  const DottedName name = TakeApart(text);
  return WindowPlace(FindWindow(app, name.window), text, name);
}

Window& FindWindow(const App& app, const std::string& name) {
  Window* window = app.FindWindow(name);
  if (window == nullptr) throw ScriptError("there is no window " + Quoted(name));
  return *window;
}

Control& FindControl(const App& app, const std::string& place) {
  const std::size_t point = place.find('.');
  const Window& window = FindWindow(app, place.substr(0, point));
  if (point == std::string::npos) throw ScriptError(place + " is a window; name a control of it");
  Control* control = window.Find(std::string_view(place).substr(point + 1));
  if (control == nullptr) throw ScriptError("there is no control " + place);
  return *control;
}

}  // namespace pelorium
