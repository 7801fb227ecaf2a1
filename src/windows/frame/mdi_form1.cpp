// The main frame.
#include "windows/frame/mdi_form1.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "core/model_store.h"
#include "windows/frame/command_table.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/help_me.h"
#include "windows/frame/run_command.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shaded_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr const char* kTitle = "Pelorium v2.14";

MenuItem* FindItem(const std::vector<std::unique_ptr<MenuItem>>& menu, std::string_view name) {
  const auto found =
      std::find_if(menu.begin(), menu.end(), [name](const auto& item) { return item->name() == name; });
  return found == menu.end() ? nullptr : found->get();
}

}  // namespace

MDIForm1::MDIForm1(App& app) : Window(app.host, "MDIForm1", kTitle), app_(app) {
  for (const MenuCommand& command : MenuCommands()) {
    menu_.push_back(std::make_unique<MenuItem>(*this, std::string(command.name), std::string(command.caption),
                                               FindItem(menu_, command.menu)));
    MenuItem& item = *menu_.back();
    item.shortcut = command.shortcut;
    item.hasLineAbove = command.hasLineAbove;
    if (command.lacks != nullptr) item.lacks = [this, &command] { return command.lacks(app_); };
  }
  SetRole(WindowRole::Frame);
  SetClosingControl(FindItem(menu_, "exiter"));
  SetWindowsMenu(FindItem(menu_, "windowit"));
}

void MDIForm1::Load() {
  ResetModel(app_.model, app_.random);
  Trapped(app_.faults, "helpme.Load", [this] { app_.frame->helpme.LoadHelp(); });
  SetCaption(kTitle);
  LoadWindows(app_);
  app_.shadedPose = {245, 0, 45, 0, 0, 0};
  BindCommands();
  app_.view->shadedView->InitShadedContext();
  PlaceWindows();
  Show();
  RefreshViews(app_);
  app_.started = true;
}

void MDIForm1::BindCommands() {
  for (const MenuCommand& command : MenuCommands()) {
    MenuItem* item = FindItem(menu_, command.name);
    item->SetEnabled(IsAvailable(app_, command));
    item->SetToolTip(std::string(ToolTipOf(app_, command)));
    item->onClick = [this, item, &command](const Click&) { RunMenuCommand(app_, command, *item); };
  }
  BindCommandRow(app_, app_.view->form36.commandRow);
}

// In twips. The tool windows start at the left; the view stands beside the View Options.
void MDIForm1::PlaceWindows() {
  for (ToolWindow* window : app_.toolWindows()) window->MoveTo(10, 0);
  app_.geometry->revolveprof.MoveTo(0, 10);
  app_.view->form51.MoveTo(0, 10);
  app_.view->form36.MoveTo(4300, 0);
  app_.view->form36.Show();
  app_.view->form51.Show();
}

// A few windows first, by name; then the rest.
void MDIForm1::Exit() {
  std::vector<Window*> all = app_.windows();
  auto rest = all.begin();
  for (const char* name : {"Form47", "editbyface", "Form12", "Form14"}) {
    const auto found = std::find_if(rest, all.end(), [name](const Window* w) { return w->name() == name; });
    if (found != all.end()) std::rotate(rest++, found, found + 1);
  }
  for (Window* window : all) window->Hide();
  app_.exitRequested = true;
}

}  // namespace pelorium
