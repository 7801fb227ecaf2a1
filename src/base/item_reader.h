// Free-format items of a text, one after another: numbers separated by blanks, tabs, line ends and at most
// one comma. Line ends are CR LF, LF or CR; a byte order mark before everything is dropped, character 26 ends
// the text.
#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/fault.h"
#include "base/numbers.h"

namespace pelorium {

class ItemReader {
 public:
  // `text` must outlive the reader. Faults end with the line that the item was looked for in, from 1.
  // `lineNumbers`, if given, are those that the lines of `text` had in the file that they were taken from,
  // for the faults.
  explicit ItemReader(std::string_view text, std::span<const std::int64_t> lineNumbers = {});

  // The next item as a number. An empty item between two commas is 0. An item that is not a number as a whole
  // raises BadNumber, the end of the text before an item EndOfFile.
  double Number();

  // Passes over the next item, whatever it is.
  void SkipItem();

  // The next item rounded half to even into an integer field; Overflow outside the field's range.
  template <std::integral Field>
  Field Integer() {
    return Placed([&] { return ToInteger<Field>(Number()); });
  }

  // What is left of the present line, as it stands, without its line end. EndOfFile at the end of the text.
  std::string_view Line();

  // True when no further item follows.
  bool AtEnd();

 private:
  // A fault within gets the line of the last item, if it has no place yet.
  template <typename Read>
  auto Placed(Read read) {
    try {
      return read();
    } catch (const Fault& fault) {
      throw hasPlace_ ? fault : Place(fault);
    }
  }
  Fault Place(const Fault& fault);
  double NextNumber();
  std::string_view NextItem();
  void SkipBlanks();
  void SkipBlanksAndLineEnds();
  bool SkipOneLineEnd();

  std::string_view text_, rest_;
  std::span<const std::int64_t> lineNumbers_;
  std::size_t itemStart_ = 0;
  bool hasPlace_ = false;  // a fault was raised: reading is over
};

}  // namespace pelorium
