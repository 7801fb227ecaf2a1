// Ties the model, the windows and the platform together. `Deliver` is the only door for anything a person
// does.
#pragma once

#include <filesystem>
#include <functional>
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
#include "windows/notices.h"

namespace pelorium {

class EditByFace;
class Form14;
class Form31;
class Form36;
class Form5;
class Form51;
class Form55;
class Formulas;
class Formulas2Frm;
class Formulas3Frm;
class FreeFace;
class FrmAbout;
class FrmSaveProf;
class FrmSplash;
class HelpMe;
class MDIForm1;
class RevolveProf;
class ShadedView;
class SpecialEffects1;
class SpecialEffects5;
class TextBox;

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

  // In the order of their building; a window of that name, or nullptr.
  std::vector<Window*> windows() const;
  Window* FindWindow(std::string_view name) const;

  Platform& platform;
  const std::filesystem::path applicationPath;
  FaultLog faults;
  Notices notices;  // hears of every fault
  ControlHost host;
  RandomSeries random;
  ModelStore model;

  int TessCount = 1;  // number of the next free point while a mesh is clicked together
  ShadedPose shadedPose;
  // Asked for a place to draw the shaded picture on when one is first needed.
  GlOpener openGl = OpenEglSurface;
  const std::unique_ptr<ShadedView> shadedView;
  bool started = false;  // the load of the main frame is over
  bool exitRequested = false;

  // While a generator, a load, an import or a follow of new counts runs, automatic actions (Auto Revolve and
  // its like) are dropped. Counts the nested ones.
  int automaticActionsHeld = 0;

  // Every event as it is delivered, and every file dialog's answer: for a journal.
  std::function<void(const UserEvent&)> onEvent;

  // Every list of files shows what is there now.
  void ReloadFileLists();

  // Windows by the system's names. Declared in the order of their building.
 private:
  void FinishTypingElsewhere(const Control* control);
  TextBox* typedBox_ = nullptr;  // the last one that a person typed into
  template <typename WindowType>
  WindowType& Add();
  std::vector<std::unique_ptr<Window>> windows_;

 public:
  FrmSplash& frmSplash;
  MDIForm1& mdiForm1;
  Form51& form51;
  Form5& form5;
  Formulas& formulas;
  Formulas2Frm& formulas2frm;
  Formulas3Frm& formulas3frm;
  FrmSaveProf& frmsaveprof;
  EditByFace& editbyface;
  RevolveProf& revolveprof;
  Form55& form55;
  FreeFace& freeface;
  SpecialEffects1& specialeffects1;
  SpecialEffects5& specialeffects5;
  Form31& form31;
  Form14& form14;
  HelpMe& helpme;
  FrmAbout& frmAbout;
  Form36& form36;
};

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
