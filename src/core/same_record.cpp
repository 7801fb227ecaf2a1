// Comparing records to the bit.
#include "core/same_record.h"

#include <cstddef>
#include <cstring>
#include <variant>

#include "core/record_fields.h"

namespace pelorium {

namespace {

// Records without a gap between their first field and their last one are compared as they lie in memory.
template <typename Rec>
bool SameBytes(const Rec& a, const Rec& b, std::size_t from, std::size_t to) {
  return std::memcmp(reinterpret_cast<const std::byte*>(&a) + from,
                     reinterpret_cast<const std::byte*>(&b) + from, to - from) == 0;
}

bool SameValue(const std::string& a, const std::string& b) { return a == b; }

template <typename Number>
bool SameValue(const Number& a, const Number& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

template <typename Rec>
bool SameFields(const Rec& a, const Rec& b) {
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
    if (!std::visit([&](auto member) { return SameValue(a.*member, b.*member); }, field.member)) return false;
  }
  return true;
}

constexpr std::size_t kPointEnd = offsetof(PointRec, onoff) + sizeof(std::int16_t);
constexpr std::size_t kFaceEnd = offsetof(FaceRec, vt3) + sizeof(std::int16_t);
constexpr std::size_t kProfilePointEnd = offsetof(ProfilePointRec, spareCount) + sizeof(std::int16_t);
static_assert(kPointEnd == 5 * sizeof(double) + sizeof(std::int16_t));
static_assert(kFaceEnd == 9 * sizeof(double) + 3 * sizeof(std::int32_t) + 5 * sizeof(std::int16_t));
static_assert(kProfilePointEnd == 27 * sizeof(double) + 2 * sizeof(std::int16_t));

}  // namespace

bool SameRecord(const PointRec& a, const PointRec& b) { return SameBytes(a, b, 0, kPointEnd); }
bool SameRecord(const FaceRec& a, const FaceRec& b) { return SameBytes(a, b, 0, kFaceEnd); }
bool SameRecord(const ProfilePointRec& a, const ProfilePointRec& b) {
  return SameBytes(a, b, 0, kProfilePointEnd);
}
bool SameRecord(const MaterialRec& a, const MaterialRec& b) { return SameFields(a, b); }
bool SameRecord(const PartHeader& a, const PartHeader& b) { return SameFields(a, b) && a.grid == b.grid; }
bool SameRecord(const ProfileHeader& a, const ProfileHeader& b) { return SameFields(a, b); }

bool SameButCorners(const FaceRec& a, const FaceRec& b) {
  return SameBytes(a, b, offsetof(FaceRec, corner1pt), kFaceEnd);
}

}  // namespace pelorium
