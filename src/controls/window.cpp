// Windows.
#include "controls/window.h"

#include <utility>

#include "base/fault.h"
#include "controls/control.h"
#include "controls/lists.h"

namespace pelorium {

Window::Window(ControlHost& host, std::string name, std::string caption)
    : host_(host), name_(std::move(name)), caption_(std::move(caption)) {}

void Window::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  NotifyChanged();
}

void Window::ReloadFileLists() {
  for (Control* control : controls_) {
    if (control->kind() == ControlKind::FileList) static_cast<FileList*>(control)->Reload();
  }
}

void Window::Show() {
  ReloadFileLists();
  visible_ = true;
  ++shows_;
  NotifyChanged();
}

void Window::Hide() {
  visible_ = false;
  NotifyChanged();
}

void Window::MoveTo(double left, double top) {
  left_ = left;
  top_ = top;
  NotifyChanged();
}

Control* Window::Find(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : found->second;
}

void Window::Adopt(Control& control) {
  if (!byName_.emplace(control.name(), &control).second) {
    throw Fault(FaultKind::InvalidValue, "two controls of the name " + control.FullName());
  }
  controls_.push_back(&control);
}

void Window::NotifyChanged() {
  if (host_.listener != nullptr) host_.listener->WindowChanged(*this);
}

}  // namespace pelorium
