// Projects that are not of our writing, and bad ones of every kind. The format itself: interchange/golden.
#include "core/project_file.h"

#include "support/harness.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

class ProjectFile : public ::testing::Test {
 protected:
  ProjectFile() { NumberModel(model); }

  std::string Saved() const {
    return TextOf([this](TextWriter& out) { WriteProject(model, out); });
  }

  // What a file must never break, whatever it holds.
  void ExpectInvariants() {
    for (int part = 0; part < kUserParts; ++part) {
      const PartHeader& p = model.Part(part);
      EXPECT_TRUE(p.maxfaces >= 0 && p.maxfaces <= kMaxFaces && p.minfaces >= 0);
      EXPECT_TRUE(p.maxpoints >= 0 && p.maxpoints <= kMaxPoints && p.minpoints >= 0);
      for (const FaceRec& f : FaceRange(model, part, 1, kMaxFaces)) {
        ASSERT_TRUE(f.group >= 0 && f.group <= kMaxGroup);
        for (const int corner : {f.corner1pt, f.corner2pt, f.corner3pt}) {
          ASSERT_TRUE(corner >= 1 && corner <= kMaxPoints);
        }
      }
    }
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      const int count = model.Profile(profile).count;
      EXPECT_TRUE(count >= 0 && count <= kMaxLayer);
    }
  }

  ModelStore model, other;
};

TEST_F(ProjectFile, NamesAndLineEnds) {
  model.MaterialGroups(0).GroupName = "two\r\nlines";  // cannot break the file
  model.MaterialGroups(40).GroupName = "";
  std::string text = Saved();
  std::erase(text, '\r');
  ReadProject(other, text);
  EXPECT_EQ(other.MaterialGroups(0).GroupName, "twolines");
  EXPECT_EQ(other.MaterialGroups(1).Ns, model.MaterialGroups(1).Ns);
  EXPECT_EQ(other.MaterialGroups(40).GroupName, "");
}

TEST_F(ProjectFile, NumbersOutOfTheirTablesAreHeld) {
  std::string text = Saved();
  const std::string corners = "116 117 118 1 1";
  text.replace(text.find(corners), corners.size(), "0 99999 -3 99 0");
  ReadProject(model, text);
  EXPECT_EQ(model.Faces(0, 1).corner1pt, 1);
  EXPECT_EQ(model.Faces(0, 1).corner2pt, 23000);
  EXPECT_EQ(model.Faces(0, 1).corner3pt, 1);
  EXPECT_EQ(model.Faces(0, 1).group, 41);
}

TEST_F(ProjectFile, CountersAboveTheLimitsEndAtTheTable) {
  std::string text = " 23001  1  7701  1 ";
  for (int face = 1; face <= 7701; ++face) text += "1 1 1 2 2 2 3 3 3 1 2 3 0 1\n";
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { ReadProject(model, text); }));
  EXPECT_EQ(model.Part(0).maxfaces, 7700);
  EXPECT_EQ(model.Part(0).maxpoints, 23000);
  EXPECT_EQ(model.Faces(0, 7700).c3Z, 3);
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { ReadProject(model, " 5  1  99999  1 "); }));
  EXPECT_EQ(model.Part(0).maxpoints, 5);
  EXPECT_EQ(model.Part(0).maxfaces, 7700);  // a number that fits no counter is not stored
}

TEST_F(ProjectFile, BadTextIsAFaultAndBreaksNothing) {
  for (const char* text : {"", "x", "1 1 nan 1", "1 1 inf 1", "0x10", "1,5,,", "1e999", "5 1 3 1 2 2"}) {
    EXPECT_THROW(ReadProject(model, text), Fault) << text;
    ExpectInvariants();
  }
  EXPECT_THROW(ReadProject(model, std::string(10 << 20, '7')), Fault);
  EXPECT_THROW(ReadProject(model, std::string(10 << 20, ' ')), Fault);
  ExpectInvariants();
}

// The first bytes one by one, the rest in strides: every block is cut somewhere inside a number.
TEST_F(ProjectFile, CutAnywhere) {
  const std::string text = Saved();
  for (std::size_t cut = 0; cut + 10 < text.size(); cut += cut < 600 ? 1 : 3989) {
    EXPECT_THROW(ReadProject(other, std::string_view(text).substr(0, cut)), Fault) << cut;
  }
}

}  // namespace
}  // namespace pelorium
