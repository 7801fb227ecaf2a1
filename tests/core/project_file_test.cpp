// The project file: its text to the byte, round trips, and bad files of every kind.
#include "core/project_file.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <string>
#include <vector>

#include "base/fault.h"
#include "base/random_series.h"
#include "support/harness.h"

namespace pelorium {
namespace {

std::string Saved(const ModelStore& model) {
  StringSink sink;
  TextWriter out(sink);
  WriteProject(model, out);
  out.Flush();
  return sink.text();
}

class ProjectFile : public ::testing::Test {
 protected:
  ProjectFile() { ResetModel(model, random); }

  // One triangle in Part 1, so that no block is empty.
  void AddTriangle() {
    PartHeader& part = model.Part(1);
    part.maxpoints = 3;
    part.maxfaces = 1;
    FaceRec& face = model.Faces(1, 1);
    face.corner2pt = 2, face.corner3pt = 3, face.group = 41, face.onoff = 0;
    face.c2X = 2.675, face.c3Z = -0.001;
    model.Points(1, 2).X = 2.675;
    model.Points(1, 2).u = 1.0 / 3;
    model.PointMark(1, 3) = 0;
  }

  std::vector<std::string> LinesOf(const std::string& text, std::size_t most) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; lines.size() < most && at < text.size();) {
      const std::size_t end = text.find("\r\n", at);
      lines.push_back(text.substr(at, end - at));
      at = end + 2;
    }
    return lines;
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

  RandomSeries random;
  ModelStore model;
};

TEST_F(ProjectFile, BlocksStandInTheirOrderAndForms) {
  AddTriangle();
  const auto lines = LinesOf(Saved(model), 30);
  const std::array<std::string, 16> expected = {
      " 0  1 ",      " 0  1 ",  // Part 0: points, faces
      " 3  1 ",      " 1  1 ",
      "0 0 0",       "2.68 0 0",
      "0 0 0",       "1 2 3 41 0",
      " 31 ",        " 31 ",  // Sections of Part 0 and 1
      "1 1 1 1 1 1", "2.68 1 1 1 0.333333333333333 1",
      "1 1 1 0 1 1", "0 0 0",
      "0 0 0",       "1 1 1"};  // turns, moves and scales of profile 0
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << "line " << i + 1;
  EXPECT_EQ(lines[16], "0 0 12 30 31");
  EXPECT_EQ(lines[17], "30 30 30 10");
  EXPECT_EQ(lines[20], "0 0 0 0 0");
  EXPECT_EQ(lines[21], "0 0 0 1 1 1 0 0 0");
  EXPECT_EQ(lines[23], "0 0 0 1");
  EXPECT_EQ(lines[24], "0 0 0 0 0 0 1 1");
}

// Point 1 of each profile carries the counts; point `a` of all profiles follows the settings of profile `a`.
TEST_F(ProjectFile, CountsStandWithPointOne) {
  model.Profile(36).count = 5;
  model.ProfilePts(1, 36).X = 7;
  const std::string text = Saved(model);
  EXPECT_NE(text.find("\r\n7 0 0 0 5\r\n"), std::string::npos);
  ModelStore other;
  ReadProject(other, text);
  EXPECT_EQ(other.Profile(36).count, 5);
  EXPECT_EQ(other.ProfilePts(1, 36).X, 7);
}

TEST_F(ProjectFile, SaveOpenSaveGivesTheSameBytes) {
  AddTriangle();
  model.MaterialGroups(3).GroupName = "a, \"quoted\"  name ";
  model.MaterialGroups(4).GroupName = "";
  model.Profile(2).genTurnY = 1.0 / 7;
  model.ProfilePts(20, 30).secMultY = 1e-20;
  model.ProfilePts(20, 30).spareCount = 12;  // what another program wrote there
  const std::string text = Saved(model);
  ModelStore other;
  ReadProject(other, text);
  EXPECT_EQ(Saved(other), text);
  EXPECT_EQ(other.MaterialGroups(3).GroupName, "a, \"quoted\"  name ");
}

TEST_F(ProjectFile, WhatAProjectDoesNotKeep) {
  model.MaterialGroups(0).TfR = 0.5;
  model.MaterialGroups(0).TfG = 0.25;
  model.MaterialGroups(41).Ns = 9;
  model.Points(0, 1).onoff = 0;
  model.Part(0).maxpoints = 1;
  const std::string text = Saved(model);
  ModelStore other;
  ReadProject(other, text);
  EXPECT_EQ(other.MaterialGroups(0).TfR, 0.5);
  EXPECT_EQ(other.MaterialGroups(0).TfG, 1);
  EXPECT_EQ(other.MaterialGroups(41).Ns, 0.25);
  EXPECT_EQ(other.Points(0, 1).onoff, 1);
}

TEST_F(ProjectFile, ANameCannotBreakTheFile) {
  model.MaterialGroups(0).GroupName = "two\r\nlines";
  ModelStore other;
  ReadProject(other, Saved(model));
  EXPECT_EQ(other.MaterialGroups(0).GroupName, "twolines");
  EXPECT_EQ(other.MaterialGroups(1).GroupName, "bone_1");
}

TEST_F(ProjectFile, LineEndsAndCommasOfOtherSystems) {
  AddTriangle();
  std::string text = Saved(model);
  std::erase(text, '\r');
  ModelStore other;
  ReadProject(other, text);
  EXPECT_EQ(other.Points(1, 2).X, 2.68);
  EXPECT_EQ(other.MaterialGroups(40).GroupName, "bone_40");
}

TEST_F(ProjectFile, NumbersOutOfTheirTablesAreHeld) {
  AddTriangle();
  std::string text = Saved(model);
  const std::string corners = "1 2 3 41 0";
  text.replace(text.find(corners), corners.size(), "0 99999 -3 99 0");
  ReadProject(model, text);
  EXPECT_EQ(model.Faces(1, 1).corner1pt, 1);
  EXPECT_EQ(model.Faces(1, 1).corner2pt, 23000);
  EXPECT_EQ(model.Faces(1, 1).corner3pt, 1);
  EXPECT_EQ(model.Faces(1, 1).group, 41);
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

// The first kilobytes byte by byte, the rest in strides: every block is cut somewhere inside a number.
TEST_F(ProjectFile, CutAnywhere) {
  AddTriangle();
  const std::string text = Saved(model);
  for (std::size_t cut = 0; cut + 3 < text.size(); cut += cut < 600 ? 1 : 997) {
    ModelStore other;
    RandomSeries series;
    ResetModel(other, series);
    EXPECT_THROW(ReadProject(other, std::string_view(text).substr(0, cut)), Fault) << cut;
  }
  ExpectInvariants();
}

TEST_F(ProjectFile, AFailingDiskIsAFault) {
  AddTriangle();
  for (const std::size_t room : {0U, 1U, 2U, 1000U, 70000U}) {
    FailingSink sink(room);
    EXPECT_TRUE(Raises(FaultKind::FileError, [&] {
      TextWriter out(sink);
      WriteProject(model, out);
      out.Flush();
    })) << room;
  }
}

}  // namespace
}  // namespace pelorium
