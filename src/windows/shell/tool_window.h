// A window that works on the model: the hooks it may take part in, and the two verbs that its handlers are
// made of.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "controls/buttons.h"
#include "controls/window.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

// Which of a Part's counts changed.
enum class Counts { Faces, Points, All };

// What an edit does behind its change.
struct EditRule {
  bool syncs = true;      // SyncFaceCorners, within the trap
  bool refreshes = true;  // RefreshViews, whether the change met a fault or not
  bool holds = false;     // automatic actions are dropped meanwhile
};

inline constexpr EditRule kRefreshOnly = {.syncs = false};
inline constexpr EditRule kChangeOnly = {.syncs = false, .refreshes = false};

class ToolWindow : public Window {
 public:
  ToolWindow(App& app, std::string name, std::string caption);

  // Hooks: hooks.h says when they are called, and in which order the windows are.
  virtual void Load() {}
  virtual void PartChosen() {}
  virtual void ProfileChosen() {}
  virtual void CountsChanged(Counts) {}
  virtual void CountsFollowed() {}  // in all windows
  virtual void FaceRangeChosen() {}
  virtual void ViewOptionChosen() {}
  virtual void LayerShown(int) {}
  virtual void LayerChosen(int) {}
  virtual void ViewsRefreshed(const ViewSettings&) {}
  // A step was undone or done again, and the tables are other ones: the limits that follow from counts, and
  // then, when the values of bars are back, all that shows a record. Neither runs handlers or writes a
  // record.
  virtual void CountsRestored() {}
  virtual void RecordsRestored() {}

 protected:
  using Change = std::function<void()>;

  // Does what most handlers do, under the control's own name: the change in a trap, the corners, the views.
  void Edit(const Control& control, const Change& change, const EditRule& rule = {});
  // The same as the handler of a button, a tick or an option; `change` may take the click or none.
  void OnEdit(Control& control, std::function<void(const Click&)> change, const EditRule& rule = {});
  void OnEdit(Control& control, Change change, const EditRule& rule = {});
  // The same as the handler of a bar.
  void OnEdit(class ScrollBar& bar, Change change, const EditRule& rule = {});

  // A file command as the handler of a button: in a trap, and nothing behind it.
  void OnFile(Control& control, Change command);

  App& app_;
};

}  // namespace pelorium
