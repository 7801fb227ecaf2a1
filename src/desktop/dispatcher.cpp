// The face's side of App::Deliver.
#include "desktop/dispatcher.h"

#include <algorithm>

#include "controls/window.h"
#include "desktop/journal.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

UserEvent EventFor(const Control& control, UserAction action) {
  UserEvent event;
  event.window = control.owner().name();
  event.control = control.name();
  event.action = action;
  return event;
}

Dispatcher::Dispatcher(App& app, Journal& journal) : app_(app), journal_(journal) {
  app_.onEvent = [this](const UserEvent& event) { journal_.NoteEvent(event); };
}

void Dispatcher::Deliver(const UserEvent& event) {
  while (!pending_.empty()) DeliverPending(*pending_.front());
  DeliverNow(event);
}

void Dispatcher::Press(const Control& control, const Click& click) {
  UserEvent event = EventFor(control, UserAction::Press);
  event.click = click;
  Deliver(event);
}

void Dispatcher::AddPending(PendingInput& input) {
  if (std::find(pending_.begin(), pending_.end(), &input) == pending_.end()) pending_.push_back(&input);
}

void Dispatcher::DeliverPending(PendingInput& input) {
  const auto found = std::find(pending_.begin(), pending_.end(), &input);
  if (found == pending_.end()) return;
  pending_.erase(found);
  DeliverNow(input.TakeEvent());
}

void Dispatcher::DropPending(PendingInput& input) {
  pending_.erase(std::remove(pending_.begin(), pending_.end(), &input), pending_.end());
}

void Dispatcher::RunNested(const std::function<void()>& loop) {
  const bool wasBusy = std::exchange(isBusy_, false);
  loop();
  isBusy_ = wasBusy;
}

void Dispatcher::DeliverNow(const UserEvent& event) {
  putOff_.push_back(event);
  while (!isBusy_ && !putOff_.empty()) {
    const UserEvent next = putOff_.front();
    putOff_.pop_front();
    RunHandlers(next);
  }
}

void Dispatcher::RunHandlers(const UserEvent& event) {
  if (onDelivering && event.action != UserAction::Resize) onDelivering();  // nobody did that
  isBusy_ = true;
  journal_.BeginDelivery();
  app_.Deliver(event);
  journal_.EndDelivery();
  isBusy_ = false;
  if (onDelivered) onDelivered();
}

}  // namespace pelorium
