// The journal of a session.
#include "desktop/journal.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "controls/user_event.h"
#include "controls/window.h"
#include "windows/shell/event_text.h"

namespace pelorium {

Journal::Journal(const std::filesystem::path& file) : file_(file, std::ios::binary | std::ios::trunc) {
  if (!file_) std::fprintf(stderr, "pelorium: cannot write the journal %s\n", file.c_str());
}

Journal Journal::FromEnvironment() {
  const char* file = std::getenv("PELORIUM_JOURNAL");
  return file != nullptr && *file != '\0' ? Journal(file) : Journal();
}

void Journal::BeginDelivery() { open_.emplace_back(); }

void Journal::NoteEvent(const UserEvent& event) {
  if (!open_.empty() && file_.is_open()) open_.back().line = ScriptLine(event);
}

void Journal::EndDelivery() {
  const Delivery ended = std::move(open_.back());
  open_.pop_back();
  for (const std::string& line : ended.linesBefore) Put(line);
  if (!ended.line.empty()) Put(ended.line);
}

void Journal::NoteAnswer(const std::string& fileName) {
  Put(fileName.empty() ? "cancel" : "answer " + ScriptWord(fileName));
}

void Journal::BeginModal(const Window& window) { Put("modal " + window.name()); }

void Journal::EndModal() { Put("end"); }

void Journal::Put(const std::string& line) {
  if (!file_.is_open()) return;
  if (!open_.empty()) {
    open_.back().linesBefore.push_back(line);
  } else {
    file_ << line << '\n' << std::flush;
  }
}

}  // namespace pelorium
