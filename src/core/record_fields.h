// The fields of the records by name, for scripts: one table a record type.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace pelorium {

// A field's value: a number or a text.
using FieldValue = std::variant<double, std::string>;

template <typename Rec>
struct RecordField {
  std::string_view name;
  std::variant<double Rec::*, std::int16_t Rec::*, std::int32_t Rec::*, std::string Rec::*> member;
};

// All fields of PointRec, ProfilePointRec, FaceRec, MaterialRec, PartHeader or ProfileHeader. The fields of
// profiles stand under two names each: the tables' and the one that the windows use for them.
template <typename Rec>
std::span<const RecordField<Rec>> FieldsOf();

// The field of that name, spelt exactly; nullptr if there is none.
template <typename Rec>
const RecordField<Rec>* FindField(std::string_view name);

// Nothing if the record has no field of that name.
template <typename Rec>
std::optional<FieldValue> GetField(const Rec& record, std::string_view name);

// False if the record has no field of that name. A number goes into an integer field half to even and raises
// Overflow outside the field's width; a text that is no number raises BadNumber in a number's field. A number
// given to a text field is written in its shortest form. After a fault the field is as it was.
template <typename Rec>
bool SetField(Rec& record, std::string_view name, const FieldValue& value);

}  // namespace pelorium
