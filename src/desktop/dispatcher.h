// The face's side of App::Deliver: keeps events in order, one at a time, and written in the journal.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "controls/user_event.h"

namespace pelorium {

class App;
class Journal;

// The event for a control: its names and the action filled in.
UserEvent EventFor(const Control& control, UserAction action);

// An input that waits a moment before it is delivered, so that only its newest state is: typed text, a bar
// that is being dragged, a mouse that moves over a picture.
class PendingInput {
 public:
  virtual ~PendingInput() = default;
  virtual UserEvent TakeEvent() = 0;
};

class Dispatcher {
 public:
  Dispatcher(App& app, Journal& journal);
  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;

  // Delivers what waits, oldest first, then the event. While a handler runs the event is put off until it is
  // over.
  void Deliver(const UserEvent& event);
  void Press(const Control& control, const Click& click);

  void AddPending(PendingInput& input);  // one that waits already keeps its place
  // Delivers this input alone, if it waits.
  void DeliverPending(PendingInput& input);
  // Forgets this input.
  void DropPending(PendingInput& input);

  // Runs a loop inside a handler (a dialog, a modal window): events go through while it lasts.
  void RunNested(const std::function<void()>& loop);

  // Before each delivery of what a person did, and after each: the moment to show what changed.
  std::function<void()> onDelivering, onDelivered;

 private:
  void DeliverNow(const UserEvent& event);
  void RunHandlers(const UserEvent& event);

  App& app_;
  Journal& journal_;
  std::vector<PendingInput*> pending_;
  std::deque<UserEvent> putOff_;
  bool isBusy_ = false;
};

}  // namespace pelorium
