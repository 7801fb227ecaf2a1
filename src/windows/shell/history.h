// Undo and redo. A step is what one event changed, whatever it was; what follows each other on one control,
// and a stroke of the mouse from its press to the letting go, is one event here.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "windows/shell/held_state.h"

namespace pelorium {

class App;
class Control;

// What a person or a script is about to do.
struct Doing {
  const Control* control = nullptr;
  std::string name = {};     // of what has no control
  bool mayContinue = false;  // goes on with the step before when that was the same on the same control
};

class History {
 public:
  static constexpr std::size_t kUsualLimit = 64 << 20;  // bytes

  explicit History(App& app);

  // What steps hold; complete before Start.
  HeldState held;
  // The name of what is done on a control that has no caption.
  void NameBy(const Control& control, std::function<std::string()> name);

  // Steps are kept from now on.
  void Start();
  // Around each event. Those within another one belong to its step.
  void BeginEvent(const Doing& doing);
  void EndEvent();
  // A button is held on a picture: until it is let go, all is one step.
  void Press(const Control& picture);
  void LetGo(const Control& picture);

  // Take the last step back, or do it again; a notice tells which one it was, or why there is none.
  void Undo();
  void Redo();

  // The steps' memory; the oldest ones go when it is more.
  std::size_t limit() const { return limit_; }
  void SetLimit(std::size_t bytes);
  std::size_t Bytes() const;
  std::size_t undoSteps() const { return undo_.size(); }
  std::size_t redoSteps() const { return redo_.size(); }

  // The project was opened or saved in this event.
  void ModelIsOnFile(std::string fileName) {
    fileName_ = std::move(fileName);
    isOnFileNow_ = true;
  }
  const std::string& fileName() const { return fileName_; }  // empty at the start
  // Since then, or since the start, the model has become another one.
  bool IsModelChanged() const { return modelState_ != stateOnFile_; }

 private:
  using Steps = std::deque<Step>;

  // The events that make the next step.
  struct Run {
    Doing doing;
    std::string name;
    std::uint64_t stateBefore = 0;
    ModelChange reach = ModelChange::None;  // as far as was looked
  };

  bool Continues(const Doing& doing) const;
  std::string NameOf(const Doing& doing) const;
  void LookAtRun();
  void CloseRun();
  void TakeStep(const Run& run);
  void Keep(Step step);
  void JoinCorners(Step step);
  void Trim();
  void DropAll(const std::string& name);
  const char* WhyNot(const Steps& steps, const char* none) const;
  void Restore(Steps& from, Steps& to, const char* done, const char* none);
  void Show(Step& step);

  App& app_;
  std::map<const Control*, std::function<std::string()>> names_;
  Steps undo_, redo_;
  Run run_;
  int depth_ = 0;
  bool isKept_ = false, hasRestored_ = false, isOnFileNow_ = false;
  std::vector<const Control*> pressed_;
  std::string fileName_;
  std::size_t limit_ = kUsualLimit;
  std::uint64_t modelState_ = 0, stateOnFile_ = 0, lastState_ = 0;
};

// An event, as long as it lives.
class HistoryEvent {
 public:
  HistoryEvent(History& history, const Doing& doing) : history_(history) { history_.BeginEvent(doing); }
  ~HistoryEvent() { history_.EndEvent(); }
  HistoryEvent(const HistoryEvent&) = delete;
  HistoryEvent& operator=(const HistoryEvent&) = delete;

 private:
  History& history_;
};

}  // namespace pelorium
