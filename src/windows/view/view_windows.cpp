// Builds the windows of this room.
#include "windows/view/view_windows.h"

#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/refresh_views.h"
#include "windows/view/shaded_view.h"

namespace pelorium {

ViewWindows::ViewWindows(App& app)
    : shadedView(std::make_unique<ShadedView>(app)),
      form51(app.Add<Form51>()),
      form5(app.Add<Form5>()),
      form36(app.Add<Form36>()) {
  LinkViews(app);
}

ViewWindows::~ViewWindows() = default;

}  // namespace pelorium
