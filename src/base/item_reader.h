// Free-format items of a text, one after another: numbers separated by blanks, tabs, line ends and at most one
// comma. Line ends are CR LF, LF or CR; character 26 ends the text.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "base/numbers.h"

namespace pelorium {

class ItemReader {
 public:
  // `text` must outlive the reader.
  explicit ItemReader(std::string_view text);

  // The next item as a number. An empty item between two commas is 0. An item that is not a number as a whole raises
  // BadNumber, the end of the text before an item EndOfFile.
  double Number();

  // The next item rounded half to even into an integer field; Overflow outside the field's range.
  template <std::integral Field>
  Field Integer() {
    return ToInteger<Field>(Number());
  }

  // What is left of the present line, as it stands, without its line end. EndOfFile at the end of the text.
  std::string_view Line();

  // True when no further item follows.
  bool AtEnd();

 private:
  void SkipBlanks();
  void SkipBlanksAndLineEnds();
  bool SkipOneLineEnd();

  std::string_view rest_;
};

}  // namespace pelorium
