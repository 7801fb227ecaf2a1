// Picked lines.
#include "interchange/picked_lines.h"

namespace pelorium {

void PickedLines::Take(std::string_view line, std::int64_t number) {
  ++count_;
  const bool isBlank = line.find_first_not_of(" \t") == std::string_view::npos;
  if (isBlank || numbers_.size() == mostLines_) return;
  numbers_.push_back(number);
  (text_ += line) += "\r\n";
}

}  // namespace pelorium
