// The main frame.
#include "windows/mdi_form1.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "core/part_operations.h"
#include "windows/app.h"
#include "windows/command_table.h"
#include "windows/form14_obj_files.h"
#include "windows/form31_project_files.h"
#include "windows/form36_view.h"
#include "windows/form51_view_options.h"
#include "windows/form5_precise_edit.h"
#include "windows/help_me.h"
#include "windows/refresh_views.h"
#include "windows/shaded_view.h"
#include "windows/shared_parameters.h"

namespace pelorium {

namespace {

constexpr const char* kTitle = "Pelorium v2.14";
constexpr int kStartMaxPoints = 7700;  // of the point range, before a Part says otherwise

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
  }
}

void MDIForm1::Load() {
  ResetModel(app_.model, app_.random);
  Trapped(app_.faults, "helpme.Load", [this] { app_.helpme.LoadHelp(); });
  SetCaption(kTitle);
  app_.form5.Load();
  app_.form14.Load();
  app_.form31.Load();
  app_.form36.Load();
  app_.form51.Load();
  SetLimits();
  app_.form51.Label3.SetCaption(CountCaption(app_.model, CurrentPart(app_)));
  app_.shadedPose = {245, 0, 45, 0, 0, 0};
  BindCommands();
  app_.shadedView->InitShadedContext();
  PlaceWindows();
  Show();
  RefreshViews(app_);
  app_.started = true;
}

void MDIForm1::SetLimits() {
  for (ScrollBar* range : {&app_.form5.HScroll20, &app_.form5.HScroll25}) range->SetMax(kStartMaxPoints);
}

void MDIForm1::BindCommands() {
  for (const MenuCommand& command : MenuCommands()) {
    MenuItem* item = FindItem(menu_, command.name);
    item->SetEnabled(IsAvailable(app_, command));
    item->onClick = [this, &command](const Click&) { RunMenuCommand(app_, command); };
  }
  BindCommandRow(app_, app_.form36.commandRow);
}

// In twips. The tool windows start at the left; the view stands beside the View Options.
void MDIForm1::PlaceWindows() {
  struct Place {
    const char* window;
    double left, top;
  };
  for (const Place& place : std::initializer_list<Place>{{"Form31", 10, 0},
                                                         {"Form14", 10, 0},
                                                         {"Form5", 10, 0},
                                                         {"Formulas", 10, 0},
                                                         {"Formulas2frm", 10, 0},
                                                         {"Formulas3frm", 10, 0},
                                                         {"frmsaveprof", 10, 0},
                                                         {"Form55", 10, 0},
                                                         {"freeface", 10, 0},
                                                         {"specialeffects1", 10, 0},
                                                         {"specialeffects5", 10, 0},
                                                         {"editbyface", 10, 0},
                                                         {"Form36", 4300, 0},
                                                         {"revolveprof", 0, 10},
                                                         {"Form51", 0, 10}}) {
    app_.FindWindow(place.window)->MoveTo(place.left, place.top);
  }
  app_.form36.Show();
  app_.form51.Show();
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
