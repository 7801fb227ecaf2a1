// Fields by name: every one of them, their widths, and the names that mean the same.
#include "core/record_fields.h"

#include <gtest/gtest.h>

#include <set>

#include "base/fault.h"
#include "core/model_store.h"

namespace pelorium {
namespace {

// Writes a number of its own into each field; what is found then differs in as many fields as there are
// members.
template <typename Rec>
void ExpectAllFieldsApart(std::size_t members) {
  std::set<std::string> valuesSeen;
  Rec record;
  double next = 100;
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) ASSERT_TRUE(SetField(record, field.name, next++));
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
    const std::optional<FieldValue> value = GetField(record, field.name);
    ASSERT_TRUE(value) << field.name;
    const double* number = std::get_if<double>(&*value);
    valuesSeen.insert(number != nullptr ? std::to_string(*number) : std::get<std::string>(*value));
  }
  EXPECT_EQ(valuesSeen.size(), members);
}

TEST(RecordFields, EveryFieldHasItsOwnMember) {
  ExpectAllFieldsApart<PointRec>(6);
  ExpectAllFieldsApart<ProfilePointRec>(29);
  ExpectAllFieldsApart<ProfileHeader>(26);
  ExpectAllFieldsApart<FaceRec>(17);
  ExpectAllFieldsApart<PartHeader>(9);
  ExpectAllFieldsApart<MaterialRec>(25);
}

TEST(RecordFields, RoundIntoIntegersHalfToEvenAndRefuseTheRest) {
  PointRec point;
  const struct {
    double given;
    int stored;
  } kCases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& c : kCases) {
    EXPECT_TRUE(SetField(point, "onoff", c.given));
    EXPECT_EQ(point.onoff, c.stored) << c.given;
  }
  EXPECT_THROW(SetField(point, "onoff", 32767.5), Fault);
  EXPECT_THROW(SetField(point, "onoff", std::string("1 2")), Fault);
  EXPECT_EQ(point.onoff, -32768);
  FaceRec face;
  EXPECT_TRUE(SetField(face, "corner1pt", 2147483647.0));
  EXPECT_THROW(SetField(face, "corner1pt", 2147483648.0), Fault);
  EXPECT_EQ(face.corner1pt, 2147483647);
}

// Behind the `members` names stand the second ones, in the order of the first from `from` on.
template <typename Rec>
void ExpectSecondNames(std::size_t members, std::size_t from) {
  const auto fields = FieldsOf<Rec>();
  ASSERT_EQ(fields.size(), 2 * members - from);
  for (std::size_t i = members; i < fields.size(); ++i) {
    EXPECT_EQ(fields[i].member, fields[i - members + from].member) << fields[i].name;
  }
}

TEST(RecordFields, ProfilesAnswerToBothNames) {
  ExpectSecondNames<ProfilePointRec>(29, 5);
  ExpectSecondNames<ProfileHeader>(26, 2);
  ProfilePointRec point;
  EXPECT_TRUE(SetField(point, "Bend5", 7.0));
  EXPECT_EQ(GetField(point, "secTurnY"), FieldValue(7.0));
}

}  // namespace
}  // namespace pelorium
