// A small model with another number in every field of every record, for the goldens of the file formats, and
// the comparison of what a format gives back with what was written.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/numbers.h"
#include "base/text_writer.h"
#include "core/model_store.h"
#include "core/record_fields.h"

namespace pelorium {

// Fills Parts 0 and 1 (3 and 4 points, 2 and 3 faces), all profiles and all groups by way of the tables of
// core/record_fields, so that a new field has its number by itself. Fractions end in .125, .375, .0625 or
// .1875 and show the form they are written in. Held in their limits are counters, the groups and switches of
// faces and the `count` of profile p, which is p + 1 and at most 36; groups 0..3 use one image map each.
void NumberModel(ModelStore& model);

// What `write(out)` writes.
template <typename Write>
std::string TextOf(Write write) {
  StringSink sink;
  TextWriter out(sink);
  write(out);
  out.Flush();
  return sink.text();
}

// What a format does not keep as it is, by the names of the fields.
struct Losses {
  std::vector<std::string_view> rounded;  // to 2 decimals
  std::vector<std::string_view> dropped;  // stay what they were before
};

template <typename Rec>
bool Names(const std::vector<std::string_view>& names, const RecordField<Rec>& field) {
  return std::any_of(names.begin(), names.end(),
                     [&](std::string_view name) { return FindField<Rec>(name)->member == field.member; });
}

// Compares each field of a record that was written and read again.
template <typename Rec>
void ExpectKept(const Rec& read, const Rec& written, const Losses& losses = {}, const Rec& before = {}) {
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
    const Rec& source = Names(losses.dropped, field) ? before : written;
    FieldValue expected = *GetField(source, field.name);
    if (Names(losses.rounded, field)) expected = RoundTo(std::get<double>(expected), 2);
    EXPECT_EQ(*GetField(read, field.name), expected) << field.name;
  }
}

}  // namespace pelorium
