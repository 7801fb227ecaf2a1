// Fields by name: every one of them, their widths, and the names that mean the same.
#include "core/record_fields.h"

#include <gtest/gtest.h>

#include <set>

#include "base/fault.h"
#include "core/model_store.h"

namespace pelorium {
namespace {

// Writes a number of its own into each field and finds it again, in that field and in those that mean the
// same only.
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
  ExpectAllFieldsApart<ProfilePointRec>(27);
  ExpectAllFieldsApart<ProfileHeader>(26);
  ExpectAllFieldsApart<FaceRec>(17);
  ExpectAllFieldsApart<PartHeader>(9);
  ExpectAllFieldsApart<MaterialRec>(25);
}

TEST(RecordFields, ReadsTheDefaults) {
  EXPECT_EQ(GetField(PointRec{}, "X"), FieldValue(1.0));
  EXPECT_EQ(GetField(ProfileHeader{}, "sectionCount"), FieldValue(31.0));
  EXPECT_EQ(GetField(MaterialRec{}, "bump_amt"), FieldValue(0.11));
  EXPECT_EQ(GetField(PartHeader{}, "PartName"), FieldValue(std::string()));
  EXPECT_EQ(GetField(FaceRec{}, "corner3pt"), FieldValue(1.0));
}

TEST(RecordFields, KnowsNoOtherNames) {
  PointRec point;
  EXPECT_FALSE(GetField(point, "x"));
  EXPECT_FALSE(GetField(point, ""));
  EXPECT_FALSE(SetField(point, "count", 1.0));
}

TEST(RecordFields, RoundsIntoIntegersHalfToEven) {
  PointRec point;
  const struct {
    double given;
    int stored;
  } kCases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {32767.5 - 1, 32766}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& c : kCases) {
    EXPECT_TRUE(SetField(point, "onoff", c.given));
    EXPECT_EQ(point.onoff, c.stored) << c.given;
  }
}

TEST(RecordFields, RefusesWhatDoesNotFit) {
  PointRec point;
  EXPECT_THROW(SetField(point, "onoff", 32767.5), Fault);
  EXPECT_THROW(SetField(point, "onoff", -32769.0), Fault);
  EXPECT_THROW(SetField(point, "onoff", std::string("1 2")), Fault);
  EXPECT_EQ(point.onoff, 1);
  FaceRec face;
  EXPECT_TRUE(SetField(face, "corner1pt", 2147483647.0));
  EXPECT_THROW(SetField(face, "corner1pt", 2147483648.0), Fault);
  EXPECT_EQ(face.corner1pt, 2147483647);
}

TEST(RecordFields, ProfilesAnswerToBothNames) {
  ProfilePointRec point;
  point.spinZ = 1;
  point.multZb = 2;
  point.secTurnY = 3;
  point.secMoveZ = 4;
  point.secMultY = 5;
  point.addYAmt2 = 6;
  EXPECT_EQ(GetField(point, "AngleZ"), FieldValue(1.0));
  EXPECT_EQ(GetField(point, "LayerScale"), FieldValue(2.0));
  EXPECT_EQ(GetField(point, "Bend5"), FieldValue(3.0));
  EXPECT_EQ(GetField(point, "Bend3"), FieldValue(4.0));
  EXPECT_EQ(GetField(point, "Bend8"), FieldValue(5.0));
  EXPECT_EQ(GetField(point, "AddMult2Y"), FieldValue(6.0));
  ProfileHeader header;
  header.layerCount = 7;
  header.addProfile2X = 8;
  header.pathProfileY = 9;
  EXPECT_EQ(GetField(header, "NumLayers"), FieldValue(7.0));
  EXPECT_EQ(GetField(header, "MultProf2X"), FieldValue(8.0));
  EXPECT_EQ(GetField(header, "AddProfY"), FieldValue(9.0));
}

}  // namespace
}  // namespace pelorium
