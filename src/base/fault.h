// Run-time faults, the trap that ends a handler quietly, and the log that remembers what was trapped.
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pelorium {

enum class FaultKind {
  Subscript,  // an index outside its table
  Overflow,   // a number that does not fit its field
  DivisionByZero,
  BadNumber,  // text that is no number, or a NaN or infinity that should become text
  EndOfFile,
  FileError,
  InvalidValue,  // a value outside a control's Min..Max
};

std::string_view FaultKindName(FaultKind kind);

// The one exception of the program. Everything that can go wrong at run time is thrown as a Fault.
class Fault : public std::exception {
 public:
  Fault(FaultKind kind, std::string detail);

  FaultKind kind() const { return kind_; }
  const char* what() const noexcept override { return message_.c_str(); }

  // The same fault with the place where it happened: ", line 7".
  Fault At(const std::string& place) const;

 private:
  FaultKind kind_;
  std::string message_;
};

// Keeps the faults that handlers met since the last asking, oldest first. Bounded: a fault that repeats at
// each mouse move must not eat the memory, so past kCapacity only the count of further faults is kept.
class FaultLog {
 public:
  static constexpr std::size_t kCapacity = 1000;

  // `where` names the handler, as "Form31.Command15". With PELORIUM_LOG=1 set the line also goes to standard
  // error.
  void Note(std::string_view where, const std::exception& fault);
  void NoteLine(const std::string& line);

  // Faults noted so far, taken or not.
  std::size_t count() const { return count_; }

  // Never goes to standard error.
  bool isQuiet = false;

  // Hears of each line as it is noted.
  std::function<void(const std::string& line)> onNote;

  // The lines "where: what" since the last call; empties the log.
  std::vector<std::string> TakeAll();

 private:
  std::vector<std::string> lines_;
  std::size_t count_ = 0, dropped_ = 0;
};

// Runs `body`; a fault ends it quietly and is noted. What was written up to then stays. False after a fault.
template <typename Body>
bool Trapped(FaultLog& log, std::string_view where, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception& fault) {
    log.Note(where, fault);
    return false;
  }
}

}  // namespace pelorium
