// What shows one control on the screen.
#pragma once

#include <QLabel>
#include <QWidget>
#include <unordered_map>

#include "controls/control.h"

namespace pelorium {

class Dispatcher;

class ControlView {
 public:
  virtual ~ControlView() = default;

  // The widget to lay out.
  virtual QWidget* widget() = 0;
  // Makes the widget show the control's present state; delivers nothing.
  virtual void Sync() = 0;

  // A text that stands before the widget and comes and goes with it.
  QLabel* before = nullptr;
};

// The views that were built, by control. A control is shown in one place.
using ViewMap = std::unordered_map<const Control*, ControlView*>;

// What all widgets show alike: whether there, whether enabled, the tool tip.
void SyncCommon(ControlView& view, const Control& control);
void SyncCommon(ControlView& view, const Control& control, bool isShown);  // whatever the control says

// Names the widget after its control, and delivers the events that any control may have a handler for and its
// widget does not tell: clicks on labels, boxes and frames, double clicks, keys.
void Adopt(QWidget& widget, Control& control, Dispatcher& dispatcher);

// What is held down with a mouse button or key.
Keys KeysHeld(Qt::KeyboardModifiers modifiers);

}  // namespace pelorium
