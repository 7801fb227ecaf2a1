// Records as lines of a text: tables tell which fields stand on which line, and a writer and a reader walk
// them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <variant>
#include <vector>

#include "base/item_reader.h"
#include "base/text_writer.h"

namespace pelorium {

inline constexpr int kPositionDecimals = 2;

enum class ItemForm { Rounded, Exact };

// One item of a line: a member of a record, for fractions the form it is written in, and for whole numbers
// that address a table the limits they are held in when read.
template <typename Rec>
struct RecordItem {
  std::variant<double Rec::*, std::int16_t Rec::*, std::int32_t Rec::*> field;
  ItemForm form = ItemForm::Exact;
  std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  std::int32_t highest = std::numeric_limits<std::int32_t>::max();
};

template <typename Rec>
using RecordLine = std::vector<RecordItem<Rec>>;

template <typename Rec>
RecordLine<Rec> Fractions(std::initializer_list<double Rec::*> fields, ItemForm form = ItemForm::Exact) {
  RecordLine<Rec> line;
  for (auto field : fields) line.push_back({field, form});
  return line;
}

template <typename Rec>
RecordLine<Rec> WholeNumbers(std::initializer_list<std::int16_t Rec::*> fields) {
  RecordLine<Rec> line;
  for (auto field : fields) line.push_back({field});
  return line;
}

template <typename Rec>
RecordLine<Rec> operator+(RecordLine<Rec> left, const RecordLine<Rec>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

template <typename Rec>
void WriteItem(TextWriter& out, const Rec& record, const RecordItem<Rec>& item) {
  if (const auto* number = std::get_if<double Rec::*>(&item.field)) {
    if (item.form == ItemForm::Rounded) {
      out.Rounded(record.**number, kPositionDecimals);
    } else {
      out.General(record.**number);
    }
  } else if (const auto* narrow = std::get_if<std::int16_t Rec::*>(&item.field)) {
    out.Integer(record.**narrow);
  } else {
    out.Integer(record.*std::get<std::int32_t Rec::*>(item.field));
  }
}

// With one blank between the items and no line end.
template <typename Rec>
void WriteItems(TextWriter& out, const Rec& record, const RecordLine<Rec>& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (i > 0) out.Text(" ");
    WriteItem(out, record, line[i]);
  }
}

template <typename Rec>
void WriteLines(TextWriter& out, const Rec& record, std::span<const RecordLine<Rec>> lines) {
  for (const RecordLine<Rec>& line : lines) {
    WriteItems(out, record, line);
    out.EndLine();
  }
}

template <typename Rec>
void ReadItems(ItemReader& in, Rec& record, const RecordLine<Rec>& line) {
  for (const RecordItem<Rec>& item : line) {
    if (const auto* number = std::get_if<double Rec::*>(&item.field)) {
      record.** number = in.Number();
    } else if (const auto* narrow = std::get_if<std::int16_t Rec::*>(&item.field)) {
      record.** narrow = static_cast<std::int16_t>(
          std::clamp<std::int32_t>(in.Integer<std::int16_t>(), item.lowest, item.highest));
    } else {
      record.*std::get<std::int32_t Rec::*>(item.field) =
          std::clamp(in.Integer<std::int32_t>(), item.lowest, item.highest);
    }
  }
}

template <typename Rec>
void ReadLines(ItemReader& in, Rec& record, std::span<const RecordLine<Rec>> lines) {
  for (const RecordLine<Rec>& line : lines) ReadItems(in, record, line);
}

}  // namespace pelorium
