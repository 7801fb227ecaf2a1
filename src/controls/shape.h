// A plain shape over a picture: its place in the picture's units, its top being the larger y.
#pragma once

#include "controls/control.h"

namespace pelorium {

class Shape : public Control {
 public:
  enum class Form { Rectangle, Circle };

  Shape(Window& owner, std::string name) : Control(owner, ControlKind::Shape, std::move(name), {}, {}) {
    SetVisible(false);
  }

  Form form = Form::Rectangle;
};

}  // namespace pelorium
