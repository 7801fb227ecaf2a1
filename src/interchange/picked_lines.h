// The lines of a file that begin alike, picked out for the free-format reader.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/item_reader.h"

namespace pelorium {

// Of a line 32 characters are read, from its third on: the tail of a longer one is lost, and be it within a
// number.
inline constexpr std::size_t kPickedStart = 2, kPickedLength = 32;

// Keeps as many lines as the tables can ever take items from, and counts the rest: a file of millions of
// lines costs no more memory than one that fits.
class PickedLines {
 public:
  // Every line that is not blank holds at least one item: `mostItems` lines hold all that are asked for.
  explicit PickedLines(std::size_t mostItems) : mostLines_(mostItems) {}

  // `line` without what is not to be kept; `number` is its own in the file, from 1.
  void Take(std::string_view line, std::int64_t number);

  // Of all lines taken, kept or not.
  std::int64_t count() const { return count_; }
  // What was kept, each line with CR LF behind it.
  const std::string& text() const { return text_; }
  // The numbers that the kept lines had in the file.
  const std::vector<std::int64_t>& numbers() const { return numbers_; }
  // Reads the items; the lines must outlive it.
  ItemReader Items() const { return ItemReader(text_, numbers_); }

 private:
  std::size_t mostLines_;
  std::int64_t count_ = 0;
  std::string text_;
  std::vector<std::int64_t> numbers_;
};

// The 32 characters of a line that are read.
inline std::string_view PickedPart(std::string_view line) { return line.substr(kPickedStart, kPickedLength); }

}  // namespace pelorium
