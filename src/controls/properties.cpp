// One table of the properties: what it is called, who has it, how it is read and written.
#include "controls/properties.h"
#include "controls/combo_box.h"

#include <functional>

#include "base/numbers.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace pelorium {

namespace {

struct Property {
  std::string_view name;
  std::function<std::optional<PropertyValue>(const Control&)> get;
  std::function<bool(Control&, const PropertyValue&)> set;  // empty: read only
};

template <typename Kind>
const Kind* As(const Control& control) {
  return dynamic_cast<const Kind*>(&control);
}

// A property that only controls of one kind have.
template <typename Kind, typename Read>
auto ReadOf(Read read) {
  return [read](const Control& control) -> std::optional<PropertyValue> {
    const Kind* kind = As<Kind>(control);
    if (kind == nullptr) return std::nullopt;
    return PropertyValue(read(*kind));
  };
}

template <typename Kind, typename Write>
auto WriteOf(Write write) {
  return [write](Control& control, const PropertyValue& value) {
    Kind* kind = dynamic_cast<Kind*>(&control);
    if (kind == nullptr) return false;
    write(*kind, value);
    kind->NotifyChanged();
    return true;
  };
}

int WholeOf(const PropertyValue& value) { return ToInteger<int>(AsNumber(value)); }

Property Place(std::string_view name, double Control::*field) {
  return {name, ReadOf<Control>([field](const Control& c) { return c.*field; }),
          WriteOf<Control>([field](Control& c, const PropertyValue& v) { c.*field = AsNumber(v); })};
}

Property BarStep(std::string_view name, int ScrollBar::*field) {
  return {name, ReadOf<ScrollBar>([field](const ScrollBar& b) { return static_cast<double>(b.*field); }),
          WriteOf<ScrollBar>([field](ScrollBar& b, const PropertyValue& v) { b.*field = WholeOf(v); })};
}

Property PenColour(std::string_view name, Colour Picture::*field) {
  return {name, ReadOf<PictureBox>([field](const PictureBox& p) {
            return static_cast<double>(p.picture().*field);
          }),
          WriteOf<PictureBox>([field](PictureBox& p, const PropertyValue& v) {
            p.picture().*field = ToInteger<Colour>(AsNumber(v));
          })};
}

std::vector<Property> CommonProperties() {
  return {
      {"value", ReadOf<Control>([](const Control& c) { return c.Value(); }),
       WriteOf<Control>([](Control& c, const PropertyValue& v) { c.SetOwnValue(v); })},
      {"caption", ReadOf<Control>([](const Control& c) { return c.caption(); }),
       WriteOf<Control>([](Control& c, const PropertyValue& v) { c.SetCaption(AsText(v)); })},
      {"tooltip", ReadOf<Control>([](const Control& c) { return c.toolTip(); }),
       WriteOf<Control>([](Control& c, const PropertyValue& v) { c.SetToolTip(AsText(v)); })},
      {"enabled", ReadOf<Control>([](const Control& c) { return c.enabled() ? 1.0 : 0.0; }),
       WriteOf<Control>([](Control& c, const PropertyValue& v) { c.SetEnabled(AsNumber(v) != 0); })},
      {"visible", ReadOf<Control>([](const Control& c) { return c.visible() ? 1.0 : 0.0; }),
       WriteOf<Control>([](Control& c, const PropertyValue& v) { c.SetVisible(AsNumber(v) != 0); })},
      Place("left", &Control::left),
      Place("top", &Control::top),
      Place("width", &Control::width),
      Place("height", &Control::height),
  };
}

std::vector<Property> BarAndTextProperties() {
  return {
      {"min", ReadOf<ScrollBar>([](const ScrollBar& b) { return static_cast<double>(b.min()); }),
       WriteOf<ScrollBar>([](ScrollBar& b, const PropertyValue& v) { b.SetMin(WholeOf(v)); })},
      {"max", ReadOf<ScrollBar>([](const ScrollBar& b) { return static_cast<double>(b.max()); }),
       WriteOf<ScrollBar>([](ScrollBar& b, const PropertyValue& v) { b.SetMax(WholeOf(v)); })},
      BarStep("smallchange", &ScrollBar::smallChange),
      BarStep("largechange", &ScrollBar::largeChange),
      {"text", ReadOf<ComboBox>([](const ComboBox& c) { return c.text(); }),
       WriteOf<ComboBox>([](ComboBox& c, const PropertyValue& v) { c.Type(AsText(v)); })},
      {"text", ReadOf<TextBox>([](const TextBox& t) { return t.text(); }),
       WriteOf<TextBox>([](TextBox& t, const PropertyValue& v) { t.SetText(AsText(v)); })},
      {"max", ReadOf<ProgressBar>([](const ProgressBar& b) { return static_cast<double>(b.max()); }),
       WriteOf<ProgressBar>([](ProgressBar& b, const PropertyValue& v) { b.SetMax(WholeOf(v)); })},
      {"min", ReadOf<ProgressBar>([](const ProgressBar&) { return 0.0; }), {}},
  };
}

std::vector<Property> PictureProperties() {
  return {
      {"pixelwidth",
       ReadOf<PictureBox>([](const PictureBox& p) { return double(p.measures().PixelWidth()); }),
       {}},
      {"pixelheight",
       ReadOf<PictureBox>([](const PictureBox& p) { return double(p.measures().PixelHeight()); }),
       {}},
      {"scalewidth", ReadOf<PictureBox>([](const PictureBox& p) { return p.measures().ScaleWidth(); }),
       WriteOf<PictureBox>([](PictureBox& p, const PropertyValue& v) {
         p.picture().SetScale(AsNumber(v), p.measures().ScaleHeight());
       })},
      {"scaleheight", ReadOf<PictureBox>([](const PictureBox& p) { return p.measures().ScaleHeight(); }),
       WriteOf<PictureBox>([](PictureBox& p, const PropertyValue& v) {
         p.picture().SetScale(p.measures().ScaleWidth(), AsNumber(v));
       })},
      PenColour("forecolor", &Picture::foreColour),
      PenColour("backcolor", &Picture::backColour),
      {"drawwidth", ReadOf<PictureBox>([](const PictureBox& p) { return double(p.picture().drawWidth); }),
       WriteOf<PictureBox>(
           [](PictureBox& p, const PropertyValue& v) { p.picture().drawWidth = WholeOf(v); })},
  };
}

const std::vector<Property>& Properties() {
  static const std::vector<Property> all = [] {
    std::vector<Property> list = CommonProperties();
    for (auto part : {BarAndTextProperties(), PictureProperties()}) {
      list.insert(list.end(), part.begin(), part.end());
    }
    return list;
  }();
  return all;
}

}  // namespace

std::optional<PropertyValue> GetProperty(const Control& control, std::string_view property) {
  for (const Property& candidate : Properties()) {
    if (candidate.name != property) continue;
    if (auto value = candidate.get(control)) return value;
  }
  return std::nullopt;
}

bool SetProperty(Control& control, std::string_view property, const PropertyValue& value) {
  for (const Property& candidate : Properties()) {
    if (candidate.name == property && candidate.set && candidate.set(control, value)) return true;
  }
  return false;
}

std::optional<PropertyValue> GetProperty(const Window& window, std::string_view property) {
  if (property == "caption") return window.caption();
  if (property == "visible") return window.visible() ? 1.0 : 0.0;
  if (property == "left") return window.left();
  if (property == "top") return window.top();
  return std::nullopt;
}

bool SetProperty(Window& window, std::string_view property, const PropertyValue& value) {
  if (property == "caption") {
    window.SetCaption(AsText(value));
  } else if (property == "visible") {
    AsNumber(value) != 0 ? window.Show() : window.Hide();
  } else if (property == "left") {
    window.MoveTo(AsNumber(value), window.top());
  } else if (property == "top") {
    window.MoveTo(window.left(), AsNumber(value));
  } else {
    return false;
  }
  return true;
}

}  // namespace pelorium
