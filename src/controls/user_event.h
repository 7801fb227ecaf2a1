// What a person did, as every face tells it to the program.
#pragma once

#include <string>

#include "controls/control.h"

namespace pelorium {

enum class UserAction {
  Press,  // a click
  Drag,   // a scroll bar moved to `value`, or a list's entry `value` chosen
  Type,   // a text box's text replaced by `text`
  DoubleClick,
  Key,  // the first character of `text`
  MouseDown,
  MouseMove,
  MouseUp,      // on a picture at x, y in its user units
  Wheel,        // turned by `value` steps over a picture at x, y, away from the person counting up
  Resize,       // a picture given width x height pixels
  CloseWindow,  // the window itself; `control` is empty
};

struct UserEvent {
  std::string window, control;
  UserAction action = UserAction::Press;
  double value = 0;
  std::string text = {};
  Click click = {};
  float x = 0, y = 0;
  int width = 0, height = 0;
  bool onScreen = false;  // of a Resize: the picture got that size on a screen
};

}  // namespace pelorium
