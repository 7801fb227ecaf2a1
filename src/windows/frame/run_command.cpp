// What each kind of command does.
#include "windows/frame/run_command.h"

#include <algorithm>
#include <string>

#include "windows/interchange/combine_parts.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/command_row.h"
#include "windows/view/form36_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// "Form31.Command15" as window and control.
Control* FindControl(const App& app, std::string_view place) {
  const std::size_t dot = place.find('.');
  if (dot == std::string_view::npos) return nullptr;
  const Window* window = app.FindWindow(place.substr(0, dot));
  return window == nullptr ? nullptr : window->Find(place.substr(dot + 1));
}

void SwitchOn(App& app, std::string_view place) {
  if (auto* option = dynamic_cast<OptionButton*>(FindControl(app, place))) option->SetValue(true);
}

const MenuCommand* FindMenuCommand(std::string_view name) {
  const auto found = std::find_if(MenuCommands().begin(), MenuCommands().end(),
                                  [name](const MenuCommand& command) { return command.name == name; });
  return found == MenuCommands().end() ? nullptr : &*found;
}

// The bars that follow are moved by the program, not by a person: no automatic action comes of it.
void ChangeParts(App& app, const CommandAction& action, const Control& pressed) {
  const HoldAutomaticActions hold(app);
  Trapped(app.faults, pressed.FullName(), [&] {
    action.run(app);
    if (action.kind == CommandKind::Change) SyncFaceCorners(app);
  });
  RefreshViews(app);
}

// The one button of the row that repeats no menu item.
const MenuCommand kCollapse = {
    .menu = "",
    .caption = "Collapse into part#",
    .name = "collapse",
    .action = {CommandKind::Change, CollapseIntoCurrent},
    .toolTip =
        "both Parts become the current one, rounded to 3 decimals, without faces that are off and in "
        "one group; the other Part is erased, and the current profile loses its points"};

const MenuCommand* CommandOf(const CommandButton& button) {
  return button.menuItem.empty() ? &kCollapse : FindMenuCommand(button.menuItem);
}

}  // namespace

bool IsAvailable(const App& app, const MenuCommand& command) {
  switch (command.action.kind) {
    case CommandKind::Head:
      return true;
    case CommandKind::Show:
    case CommandKind::Edit:
    case CommandKind::EditAndOn:
      return app.FindWindow(command.action.target) != nullptr;
    case CommandKind::Press:
    case CommandKind::SwitchOn: {
      const Control* control = FindControl(app, command.action.target);
      return control != nullptr && control->enabled();
    }
    case CommandKind::Run:
    case CommandKind::Change:
    case CommandKind::Mark:
      return command.action.run != nullptr;
  }
  return false;
}

std::string_view ToolTipOf(const App& app, const MenuCommand& command) {
  if (!command.toolTip.empty()) return command.toolTip;
  const Control* control = FindControl(app, command.action.target);
  return control == nullptr ? std::string_view() : control->toolTip();
}

void RunMenuCommand(App& app, const MenuCommand& command, const Control& pressed) {
  switch (command.action.kind) {
    case CommandKind::Head:
      return;
    case CommandKind::Edit:
    case CommandKind::EditAndOn:
      app.view->form36.DisarmModes();
      [[fallthrough]];
    case CommandKind::Show:
      app.FindWindow(command.action.target)->Show();
      if (command.action.kind == CommandKind::EditAndOn) SwitchOn(app, command.action.also);
      if (command.action.kind != CommandKind::Show) RefreshViews(app);  // what showed the mode goes
      return;
    case CommandKind::Press:
      FindControl(app, command.action.target)->Press({});
      return;
    case CommandKind::SwitchOn:
      SwitchOn(app, command.action.target);
      return;
    case CommandKind::Run:
      command.action.run(app);
      return;
    case CommandKind::Change:
    case CommandKind::Mark:
      ChangeParts(app, command.action, pressed);
      return;
  }
}

void BindCommandRow(App& app, const std::vector<std::unique_ptr<PushButton>>& row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    const MenuCommand* command = CommandOf(CommandButtons()[i]);
    if (command == nullptr) continue;
    PushButton& button = *row[i];
    button.SetEnabled(IsAvailable(app, *command));
    button.SetToolTip(std::string(ToolTipOf(app, *command)));
    button.onClick = [&app, &button, command](const Click&) { RunMenuCommand(app, *command, button); };
  }
}

}  // namespace pelorium
