// Faults and their log.
#include "base/fault.h"

#include <cstdio>
#include <cstdlib>

namespace pelorium {

namespace {

bool LogsToStandardError() {
  static const bool on = [] {
    const char* value = std::getenv("PELORIUM_LOG");
    return value != nullptr && std::string_view(value) == "1";
  }();
  return on;
}

}  // namespace

std::string_view FaultKindName(FaultKind kind) {
  switch (kind) {
    case FaultKind::Subscript:
      return "subscript out of range";
    case FaultKind::Overflow:
      return "overflow";
    case FaultKind::DivisionByZero:
      return "division by zero";
    case FaultKind::BadNumber:
      return "bad number";
    case FaultKind::EndOfFile:
      return "end of file";
    case FaultKind::FileError:
      return "file error";
    case FaultKind::InvalidValue:
      return "invalid value";
  }
  return "fault";
}

Fault::Fault(FaultKind kind, std::string detail) : kind_(kind), message_(FaultKindName(kind)) {
  if (!detail.empty()) message_ += ": " + detail;
}

Fault Fault::At(const std::string& place) const {
  Fault placed = *this;
  placed.message_ += place;
  return placed;
}

void FaultLog::Note(std::string_view where, const std::exception& fault) {
  NoteLine(std::string(where) + ": " + fault.what());
}

void FaultLog::NoteLine(const std::string& line) {
  ++count_;
  if (!isQuiet && LogsToStandardError()) std::fprintf(stderr, "fault: %s\n", line.c_str());
  if (onNote) onNote(line);
  if (lines_.size() < kCapacity) {
    lines_.push_back(line);
  } else {
    ++dropped_;
  }
}

std::vector<std::string> FaultLog::TakeAll() {
  std::vector<std::string> taken = std::exchange(lines_, {});
  if (dropped_ > 0) taken.push_back("and " + std::to_string(dropped_) + " more");
  dropped_ = 0;
  return taken;
}

}  // namespace pelorium
