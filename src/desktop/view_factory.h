// Makes the widget that shows a control.
#pragma once

#include "desktop/control_view.h"

namespace pelorium {

// The view owns nothing but the widget that it is; its parent deletes it. Nullptr for a kind that no window
// shows (entries of the menu bar). `orientation` matters to scroll bars.
ControlView* MakeView(Control& control, Qt::Orientation orientation, Dispatcher& dispatcher, QWidget* parent);

}  // namespace pelorium
