// A fault of the image classes: beside its text it has a number and the name of the class that raised it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "base/fault.h"

namespace pelorium {

class NumberedFault : public Fault {
 public:
  // `className` as ".cDIBSection"; the program's name goes before it.
  NumberedFault(FaultKind kind, std::uint32_t number, const std::string& className, std::string text)
      : Fault(kind, text), number_(number), source_("Pelorium" + className), text_(std::move(text)) {}

  std::uint32_t number() const { return number_; }
  const std::string& source() const { return source_; }
  const std::string& text() const { return text_; }

 private:
  std::uint32_t number_;
  std::string source_, text_;
};

}  // namespace pelorium
