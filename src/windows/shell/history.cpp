// Where steps begin and end, and the way back.
#include "windows/shell/history.h"

#include <algorithm>
#include <new>
#include <utility>

#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/shell/step_name.h"

namespace pelorium {

History::History(App& app) : held(app.model, app.TessCount), app_(app) {}

void History::NameBy(const Control& control, std::function<std::string()> name) {
  names_[&control] = std::move(name);
}

void History::Start() {
  held.Begin();
  isKept_ = true;
}

std::string History::NameOf(const Doing& doing) const {
  if (doing.control == nullptr) return doing.name;
  const auto own = names_.find(doing.control);
  return own == names_.end() ? StepName(*doing.control) : own->second();
}

bool History::Continues(const Doing& doing) const {
  if (!pressed_.empty()) return true;
  return doing.mayContinue && run_.doing.mayContinue && doing.control != nullptr &&
         run_.doing.control != nullptr && &OneOfPair(*doing.control) == &OneOfPair(*run_.doing.control);
}

void History::BeginEvent(const Doing& doing) {
  if (depth_++ > 0 || !isKept_ || Continues(doing)) return;
  CloseRun();
  run_ = {doing, NameOf(doing), modelState_};
}

void History::EndEvent() {
  if (--depth_ > 0 || !isKept_) return;
  if (std::exchange(hasRestored_, false)) {
    run_ = {};
  } else if (pressed_.empty() && !run_.doing.mayContinue) {
    CloseRun();
  } else {
    LookAtRun();
  }
  if (std::exchange(isOnFileNow_, false)) stateOnFile_ = modelState_;
}

void History::Press(const Control& picture) {
  LetGo(picture);
  pressed_.push_back(&picture);
}

void History::LetGo(const Control& picture) { std::erase(pressed_, &picture); }

// What may go on is kept as it is; only how far it went by now is looked at.
void History::LookAtRun() {
  if (run_.reach == ModelChange::Model) return;
  run_.reach = held.Reach(run_.reach);
  if (run_.reach >= ModelChange::Elsewhere) redo_.clear();
  if (run_.reach == ModelChange::Model) modelState_ = ++lastState_;
}

void History::CloseRun() {
  const Run run = std::exchange(run_, {});
  try {
    TakeStep(run);
  } catch (const std::bad_alloc&) {  // of pictures as large as the memory
    DropAll(run.name);
  }
}

void History::TakeStep(const Run& run) {
  Step step = held.Take();
  if (step.reach == ModelChange::None) return;
  if (step.reach == ModelChange::Corners) return JoinCorners(std::move(step));
  if (step.reach == ModelChange::Model && run.reach != ModelChange::Model) modelState_ = ++lastState_;
  step.name = run.name;
  step.modelState = run.stateBefore;
  Keep(std::move(step));
}

void History::Keep(Step step) {
  redo_.clear();
  if (step.Bytes() > limit_) return DropAll(step.name);
  undo_.push_back(std::move(step));
  Trim();
}

// The faces' copies of their corners go back with the step before. A step that waits to be done again gets
// what they were, too, so that doing it again ends where it did.
void History::JoinCorners(Step step) {
  for (Steps* steps : {&undo_, &redo_}) {
    if (!steps->empty()) Join(steps->back().model, step.model);
  }
  Trim();
}

std::size_t History::Bytes() const {
  std::size_t bytes = 0;
  for (const Steps* steps : {&undo_, &redo_}) {
    for (const Step& step : *steps) bytes += step.Bytes();
  }
  return bytes;
}

void History::Trim() {
  std::size_t bytes = Bytes();
  for (Steps* steps : {&undo_, &redo_}) {
    for (; bytes > limit_ && !steps->empty(); steps->pop_front()) bytes -= steps->front().Bytes();
  }
}

void History::SetLimit(std::size_t bytes) {
  limit_ = bytes;
  Trim();
}

void History::DropAll(const std::string& name) {
  undo_.clear();
  redo_.clear();
  app_.notices.Give(name + ": cannot be undone", NoticeKind::Result);
}

const char* History::WhyNot(const Steps& steps, const char* none) const {
  if (depth_ > 1) return "no undo or redo while a window waits for an answer";
  if (!pressed_.empty()) return "no undo or redo while a button is held on a picture";
  return steps.empty() ? none : nullptr;
}

void History::Undo() { Restore(undo_, redo_, "undone: ", "nothing to undo"); }
void History::Redo() { Restore(redo_, undo_, "redone: ", "nothing to redo"); }

void History::Restore(Steps& from, Steps& to, const char* done, const char* none) {
  if (const char* reason = WhyNot(from, none)) {
    app_.notices.Give(reason, NoticeKind::Result);
    return;
  }
  if (depth_ == 0) CloseRun();
  Step step = std::move(from.back());
  from.pop_back();
  Show(step);
  std::swap(modelState_, step.modelState);
  hasRestored_ = true;
  app_.notices.Give(done + step.name, NoticeKind::Result);
  to.push_back(std::move(step));
}

// Tables first, then the limits that follow from them, then the values, then all that shows records.
void History::Show(Step& step) {
  const HoldAutomaticActions hold(app_);
  const std::vector<Step::Bar> bars = held.ExchangeBars(step);
  held.Swap(step);
  TellCountsRestored(app_);
  held.ShowBars(bars);
  TellRecordsRestored(app_);
  RefreshViews(app_);
}

}  // namespace pelorium
