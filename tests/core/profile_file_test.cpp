// The profile file: its text to the byte, and the reader that knows no second effector.
#include "core/profile_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/fault.h"
#include "base/random_series.h"

namespace pelorium {
namespace {

class ProfileFile : public ::testing::Test {
 protected:
  ProfileFile() { ResetModel(model, random); }

  std::string Saved() const {
    StringSink sink;
    TextWriter out(sink);
    WriteProfiles(model, out);
    out.Flush();
    return sink.text();
  }

  // `count` numbers 1, 2, 3 ... one a line.
  static std::string Counting(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) text += std::to_string(i) + "\r\n";
    return text;
  }

  // Counting from `number`, the values of `fields` in their order.
  template <typename Rec, typename Field>
  static void ExpectCounting(const Rec& record, std::initializer_list<Field Rec::*> fields, int number) {
    for (auto field : fields) EXPECT_EQ(record.*field, number++);
  }

  RandomSeries random;
  ModelStore model;
};

using H = ProfileHeader;
using P = ProfilePointRec;

TEST_F(ProfileFile, EachBlockHasItsSettingsAndOnePointOfAllProfiles) {
  model.Profile(0).count = 4;
  model.Profile(0).genMoveY = 1.0 / 3;
  P& point = model.ProfilePts(1, 0);
  point.X = 2.675, point.Y = -0.001, point.multZb = 0.5, point.addZAmt2 = 7;
  const std::string text = Saved();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 7104);  // 37 * (7 + 37 * 5)
  EXPECT_EQ(text.substr(0, text.find("\r\n0 0 0 0 0\r\n")),
            "0 0 0\r\n0 0.333333333333333 0\r\n1 1 1\r\n0 0 12 30 31\r\n30 30 30 10\r\n30 30 30\r\n30 30 30");
  // Block 1 stands behind 7 + 37 * 5 = 192 lines; its first point belongs to profile 0.
  std::size_t at = 0;
  for (int line = 0; line < 192 + 7; ++line) at = text.find('\n', at) + 1;
  const std::string expected =
      "2.68 0 0 0 4\r\n0 0 0 1 1 1 0 0 0\r\n0 0 0\r\n0 0 7 0.5\r\n0 0 0 0 0 0 1 1\r\n";
  EXPECT_EQ(text.substr(at, expected.size()), expected);
}

TEST_F(ProfileFile, TheReaderTakes21And26Items) {
  EXPECT_THROW(ReadProfileFile(model, Counting(21 + 26 * 38)), Fault);
  const H& first = model.Profile(0);
  ExpectCounting<H, double>(first,
                            {&H::genRotateX, &H::genTurnY, &H::genSpinZ, &H::genMoveX, &H::genMoveY,
                             &H::genMoveZ, &H::genMultX, &H::genMultY, &H::genMultZ},
                            1);
  ExpectCounting<H, std::int16_t>(first,
                                  {&H::bottomCap, &H::topCap, &H::layerCount, &H::originPathProfile,
                                   &H::sectionCount, &H::pathProfileX, &H::pathProfileY, &H::pathProfileZ},
                                  10);
  EXPECT_EQ(first.layerSpacing, 18);
  ExpectCounting<H, std::int16_t>(first, {&H::addProfile1X, &H::addProfile1Y, &H::addProfile1Z}, 19);
  EXPECT_EQ(first.addProfile2X, 30);
  const P& point = model.ProfilePts(0, 1);
  ExpectCounting<P, double>(point, {&P::X, &P::Y, &P::Z}, 21 + 26 + 1);
  // Two items for `first` and `count`, which only point 1 carries.
  ExpectCounting<P, double>(
      point,
      {&P::rotateX,  &P::turnY,    &P::spinZ,    &P::multX,    &P::multY,    &P::multZ,    &P::moveX,
       &P::moveY,    &P::moveZ,    &P::addXAmt1, &P::addYAmt1, &P::addZAmt1, &P::multZb,   &P::secRotateX,
       &P::secTurnY, &P::secSpinZ, &P::secMoveX, &P::secMoveY, &P::secMoveZ, &P::secMultX, &P::secMultY},
      53);
  EXPECT_EQ(point.addXAmt2, 0);
  EXPECT_EQ(model.Profile(1).genRotateX, 21 + 26 * 37 + 1);
}

// A file of the writer's: from line 7 on all items land three places further on.
TEST_F(ProfileFile, AWrittenFileComesBackShifted) {
  model.Profile(0).layerCount = 17;
  const std::string text = Saved();
  ReadProfileFile(model, text);
  EXPECT_EQ(model.Profile(0).layerCount, 17);
  EXPECT_EQ(model.ProfilePts(0, 0).X, 30);  // from "30 30 30" of the second effector
  EXPECT_EQ(model.ProfilePts(0, 0).Z, 30);
  EXPECT_EQ(model.ProfilePts(0, 0).multX, 0);
}

TEST_F(ProfileFile, FaultsKeepWhatWasRead) {
  EXPECT_THROW(ReadProfileFile(model, "5 6 x"), Fault);
  EXPECT_EQ(model.Profile(0).genTurnY, 6);
  EXPECT_THROW(ReadProfileFile(model, Counting(9) + "1 40000"), Fault);
  EXPECT_EQ(model.Profile(0).bottomCap, 1);
  EXPECT_EQ(model.Profile(0).topCap, 0);
  EXPECT_THROW(ReadProfileFile(model, ""), Fault);
}

TEST_F(ProfileFile, CountsAreHeldInTheTable) {
  std::string items;
  for (int i = 0; i < 37 * (21 + 37 * 26); ++i) items += "99 ";
  ReadProfileFile(model, items);
  for (int profile = 0; profile <= kMaxProfile; ++profile) EXPECT_EQ(model.Profile(profile).count, 36);
  EXPECT_EQ(model.Profile(36).first, 99);
}

}  // namespace
}  // namespace pelorium
