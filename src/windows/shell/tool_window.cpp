// The verbs of tool windows.
#include "windows/shell/tool_window.h"

#include <optional>

#include "controls/scroll_bar.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"

namespace pelorium {

ToolWindow::ToolWindow(App& app, std::string name, std::string caption)
    : Window(app.host, std::move(name), std::move(caption)), app_(app) {}

void ToolWindow::Edit(const Control& control, const Change& change, const EditRule& rule) {
  std::optional<HoldAutomaticActions> hold;
  if (rule.holds) hold.emplace(app_);
  Trapped(app_.faults, control.FullName(), [&] {
    change();
    if (rule.syncs) SyncFaceCorners(app_);
  });
  if (rule.refreshes) RefreshViews(app_);
}

void ToolWindow::OnEdit(Control& control, std::function<void(const Click&)> change, const EditRule& rule) {
  control.onClick = [this, &control, change = std::move(change), rule](const Click& click) {
    Edit(
        control, [&] { change(click); }, rule);
  };
}

void ToolWindow::OnEdit(Control& control, Change change, const EditRule& rule) {
  control.onClick = [this, &control, change = std::move(change), rule](const Click&) {
    Edit(control, change, rule);
  };
}

void ToolWindow::OnEdit(ScrollBar& bar, Change change, const EditRule& rule) {
  bar.onChange = [this, &bar, change = std::move(change), rule] { Edit(bar, change, rule); };
}

void ToolWindow::OnFile(Control& control, Change command) {
  OnEdit(control, std::move(command), kChangeOnly);
}

}  // namespace pelorium
