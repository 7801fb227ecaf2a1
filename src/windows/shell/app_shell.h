// Ties the model, the windows and the platform together. `Deliver` is the only door for anything a person
// does.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "base/fault.h"
#include "base/random_series.h"
#include "controls/user_event.h"
#include "controls/window.h"
#include "core/model_store.h"
#include "graphics/gl_surface.h"
#include "platform/platform.h"
#include "views/shaded_settings.h"
#include "windows/shell/notices.h"
#include "windows/shell/room_links.h"
#include "windows/shell/seen_platform.h"

namespace pelorium {

class History;
class TextBox;
class ToolWindow;
struct FacetoolWindows;
struct FrameWindows;
struct GeometryWindows;
struct ImagingWindows;
struct InterchangeWindows;
struct ProfileWindows;
struct ViewWindows;

class App {
 public:
  // `applicationPath` is the program's working folder. Builds all windows; Start makes them ready.
  App(Platform& platform, const std::filesystem::path& applicationPath);
  ~App();
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  // The load of the main frame: fills the tables, sets the limits of the controls, shows the first windows.
  void Start();

  // Does what a person did. A fault that no handler trapped ends the handler and is noted. An event for a
  // control that does not exist or is disabled does nothing and returns false.
  bool Deliver(const UserEvent& event);

  // In the program's order; a window of that name, or nullptr.
  std::vector<Window*> windows() const;
  Window* FindWindow(std::string_view name) const;
  // Those that take part in the hooks, in the program's order.
  const std::vector<ToolWindow*>& toolWindows() const { return toolWindows_; }

  // An event is over: what the picture of the model is to show is drawn; after a fault in any case, from what
  // was left. Deliver, Start and each command of a script end with it.
  void EndEvent(bool hadFault = false);
  // Counts the events that are over.
  std::uint64_t eventsEnded = 0;
  // For tests: RefreshViews draws within its call. The pixels at the end of every event are the same.
  bool drawsAtOnce = false;

  // Every list of files shows what is there now.
  void ReloadFileLists();

 private:
  SeenPlatform seenPlatform_;

 public:
  Platform& platform;
  const std::filesystem::path applicationPath;
  FaultLog faults;
  // Of the drawing of pictures: noted in `faults` once an event, however often an event draws.
  FaultLog drawingFaults;
  Notices notices;  // hears of every fault
  ControlHost host;
  RandomSeries random;
  ModelStore model;

  int TessCount = 1;  // number of the next free point while a mesh is clicked together
  ShadedPose shadedPose;
  // Asked for a place to draw the shaded picture on when one is first needed.
  GlOpener openGl = OpenEglSurface;
  bool started = false;  // the load of the main frame is over
  const std::shared_ptr<History> history;
  bool exitRequested = false;

  // The file that was chosen last from a dialog, by the folder that its kind starts in.
  std::map<std::string, std::filesystem::path> lastFiles;

  // While a generator, a load, an import or a follow of new counts runs, automatic actions (Auto Revolve and
  // its like) are dropped. Counts the nested ones.
  int automaticActionsHeld = 0;

  // Every event as it is delivered, and every file dialog's answer: for a journal.
  std::function<void(const UserEvent&)> onEvent;

  // What the rooms offer each other, filled in when they are built.
  RoomLinks links;

  // For the rooms, while they are built.
  template <typename WindowType>
  WindowType& Add() {
    auto window = std::make_unique<WindowType>(*this);
    WindowType& added = *window;
    Keep(std::move(window), dynamic_cast<ToolWindow*>(&added));
    return added;
  }
  // Puts the windows into the order of `names`; one that is not there stands before the last name.
  void SetOrder(const std::vector<const char*>& names);

 private:
  void Keep(std::unique_ptr<Window> window, ToolWindow* toolWindow);
  void FinishTypingElsewhere(const Control* control);

  std::vector<std::unique_ptr<Window>> windows_;
  std::vector<ToolWindow*> toolWindows_;
  TextBox* typedBox_ = nullptr;  // the last one that a person typed into
  std::vector<std::string> drawingFaultsOfEvent_;

 public:
  // The rooms. Their windows bear the system's names: app.view->form36.
  std::shared_ptr<ViewWindows> view;
  std::shared_ptr<ProfileWindows> profiles;
  std::shared_ptr<GeometryWindows> geometry;
  std::shared_ptr<FacetoolWindows> facetools;
  std::shared_ptr<ImagingWindows> imaging;
  std::shared_ptr<InterchangeWindows> interchange;
  std::shared_ptr<FrameWindows> frame;
};

// The tables to be read, which leaves no mark on them.
inline const ModelStore& ReadModel(const App& app) { return app.model; }

// Builds the rooms with their windows: in frame/, which knows them all.
void BuildWindows(App& app);

// Holds the automatic actions back as long as it lives.
class HoldAutomaticActions {
 public:
  explicit HoldAutomaticActions(App& app) : app_(app) { ++app_.automaticActionsHeld; }
  ~HoldAutomaticActions() { --app_.automaticActionsHeld; }
  HoldAutomaticActions(const HoldAutomaticActions&) = delete;
  HoldAutomaticActions& operator=(const HoldAutomaticActions&) = delete;

 private:
  App& app_;
};

}  // namespace pelorium
