// The properties of controls and windows by name, for scripts and lists.
#pragma once

#include <optional>
#include <string_view>

#include "controls/control.h"

namespace pelorium {

class Window;

// Reading and writing one property ("max", "caption", "pixelwidth" ...). Nothing, or false, when this control has no
// such property or it cannot be written. Writing runs handlers as the program's own writing does.
std::optional<PropertyValue> GetProperty(const Control& control, std::string_view property);
bool SetProperty(Control& control, std::string_view property, const PropertyValue& value);

// The same for a window's caption, visible, left and top.
std::optional<PropertyValue> GetProperty(const Window& window, std::string_view property);
bool SetProperty(Window& window, std::string_view property, const PropertyValue& value);

}  // namespace pelorium
