// What comes of OBJ files, ours and others.
#include "interchange/obj_import.h"

#include "interchange/legacy_obj_export.h"
#include "interchange/obj_export.h"
#include "support/harness.h"
#include "support/model_text.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

constexpr int kPart = 1;

class ObjImport : public ::testing::Test {
 protected:
  ObjImport() { settings.origin.reset(); }

  void Read(std::string_view text) {
    StringSource file(text);
    ReadObj(model, kPart, file, settings);
  }
  // The kind of the fault that ends it, or what the Part then is: "points | ... faces | ...".
  std::string Outcome(std::string_view text, ObjKind kind) {
    settings.kind = kind;
    try {
      Read(text);
    } catch (const Fault& fault) {
      return fault.what();
    }
    const PartHeader& part = model.Part(kPart);
    return PointsText(model, kPart, 1, part.maxpoints) + " / " + FacesText(model, kPart, 1, part.maxfaces);
  }

  ModelStore model;
  ObjImportSettings settings;
};

TEST_F(ObjImport, PlainFiles) {
  const std::string points = "v 1 2 3\nv 4 5 6\r\nv 7,8,9\r", read = "1 3 2 | 4 6 5 | 7 9 8";
  const std::pair<std::string, std::string> table[] = {
      {"", " / "},
      {points + "f 1 2 3\n", read + " / 1 2 3"},
      {"# x\nvt 1 2\n v 1 1 1\nv\t1 1 1\nvn 1 1 1\nf\t1 2 3\n#f 1 2 3\n" + points, read + " / "},
      {points + "f 1 2 3 1\nf 2 3 1\n", read + " / 1 2 3 | 1 2 3"},  // a fourth corner shifts what follows
      {points + "f 0 99999 2147483647", read + " / 0 23000 23000"},
      {points + "f 1.5 2.5 3E0", read + " / 2 2 3"},
      {points + "f 1\nf 2 3\nf 1 2 3\nf 3 2 1", "end of file: a number was expected, line 7"},
      {points + "f 1 2 2147483648", "overflow: 2147483648, line 4"},
      {points + "f 1/1 2/2 3/3", "bad number: \"1/1\", line 4"},
      {points + "f -3 -2 -1", "subscript out of range: corner -3"},
      {"v 1 2 1e999\n", "overflow: 1e999, line 1"},
      {"#\nv 1 2\n", "end of file: a number was expected, line 2"},
      {"v 1 2 nan\n", "bad number: \"nan\", line 1"},
      // 34 characters: the third number loses its tail.
      {"v -12345.678 -12345.678 -12345.678", "-12345.678 -12345.678 -12345.678 / "},
      {"v -12345.6780 -12345.678 -12345.678", "-12345.678 -12345.67 -12345.678 / "},
  };
  for (const auto& [text, outcome] : table) EXPECT_EQ(Outcome(text, ObjKind::Plain), outcome) << text;
}

TEST_F(ObjImport, FilesWithSlashes) {
  const std::pair<std::string, std::string> table[] = {
      {"f 1/2/3 40/5/6 700/8/9", " / 1 40 700"},
      {"f 1//3 2//6 3//9\nf 4/1 5/2 6/3 7/4", " / 1 2 3 | 4 5 6"},
      {"f 123456/1 2/1 3/1", "subscript out of range: corner 123456"},
      {"f 1234567/1 2/1 3/1", "bad number: \"\", line 1"},  // the first corner has room for 6 digits
      {"f  1/2 2/3 3/4", " / 1 1 2"},                       // a second blank shifts the corners
      {"f 1/1 2/2 33/3\nf 4 5 6", " / 1 2 33 | 4 5 6"},     // searches that find nothing
      {"f 1 2 3", "bad number: \"\", line 1"},
      {"f 1/1 2/2", "bad number: \"\", line 1"},
      {"f 1.5/1 2/2 3/3", "bad number: \"1.5\", line 1"},
      {"f 0/1 2/1 3/1", " / 0 2 3"},
      {"f 1/1 -2/1 3/1", "subscript out of range: corner -2"},
      {"f 1/1 2/1 23001/1", "subscript out of range: corner 23001"},
      {"#f 1/1 2/1 3/1", " / "},
  };
  for (const auto& [text, outcome] : table) EXPECT_EQ(Outcome(text, ObjKind::WithSlashes), outcome) << text;
}

// The header stays as it was, with what was read in its place.
TEST_F(ObjImport, Limits) {
  std::string text;
  for (int i = 1; i <= kMaxPoints + 2; ++i) text += "v " + std::to_string(i) + " 0 0\n";
  std::string faces;
  for (int i = 1; i <= kMaxFaces; ++i) faces += "f 1 2 " + std::to_string(i) + "\n";
  Read(text + faces);
  EXPECT_EQ(model.Part(kPart).maxpoints, kMaxPoints);
  EXPECT_EQ(model.Part(kPart).maxfaces, kMaxFaces);
  EXPECT_EQ(model.Points(kPart, kMaxPoints).X, 23000);
  EXPECT_EQ(model.Faces(kPart, 7700).c3X, 7700);
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { Read("v 5 6 7\n" + faces + "f 1 2 3\n"); }));
  EXPECT_EQ(model.Part(kPart).maxpoints, kMaxPoints);
  EXPECT_EQ(model.Points(kPart, 1).X, 5);
  EXPECT_EQ(model.Points(kPart, 2).X, 2);
}

TEST_F(ObjImport, ScaleMoveAndMarks) {
  settings.scale = 2;
  settings.origin = {10, 20, 30};
  settings.offFacesAsOn = true;
  model.PointMark(kPart, 2) = model.Faces(kPart, 1).onoff = model.Part(kPart).minfaces = 0;
  model.Points(kPart, kMaxPoints) = {};
  Read("v 1 2 3\nv 2 4 6\n#f 1 2 1\n");
  EXPECT_EQ(PointsText(model, kPart, 1, 2), "10 20 30 | 12 26 34");
  EXPECT_EQ(PointsText(model, kPart, kMaxPoints, kMaxPoints),
            "9 15 27");                      // slots behind the count move along
  EXPECT_EQ(model.Faces(kPart, 1).c2Y, 12);  // the copies are made before the move
  EXPECT_EQ(model.PointMark(kPart, 2), 1);
  EXPECT_EQ(model.Faces(kPart, 1).onoff, 1);
  EXPECT_EQ(model.Part(kPart).minfaces, 1);
}

// Faces that are off come back on, or not at all.
TEST_F(ObjImport, RoundTrip) {
  ModelStore written;
  NumberModel(written);
  written.Part(0) = {};
  written.Part(kPart).minfaces = 1;
  written.Faces(kPart, 1).onoff = 1, written.Faces(kPart, 2).onoff = 0, written.Faces(kPart, 3).onoff = 1;
  for (int i = 1; i <= 3; ++i) written.Faces(kPart, i).corner1pt = written.Faces(kPart, i).corner2pt = i;
  for (int i = 1; i <= 3; ++i) written.Faces(kPart, i).corner3pt = 4;
  const auto text = [](const ModelStore& of, bool uv) {
    return TextOf([&](TextWriter& out) { WriteObj(of, {"", false, false, uv, false}, out); });
  };
  Read(text(written, false));
  EXPECT_EQ(FacesText(model, kPart, 1, model.Part(kPart).maxfaces), "1 1 4 | 3 3 4");
  settings.offFacesAsOn = true;
  Read(text(written, false));
  EXPECT_EQ(FacesText(model, kPart, 1, model.Part(kPart).maxfaces), "1 1 4 | 2 2 4 | 3 3 4");
  for (int i = 1; i <= 3; ++i) written.Faces(kPart, i).onoff = 1;
  EXPECT_EQ(text(model, false), text(written, false));
  settings.kind = ObjKind::WithSlashes;
  Read(text(written, true));
  EXPECT_EQ(text(model, false), text(written, false));
}

// A cell of two profiles of two points, and both caps: each ring of 2 points is one line.
TEST(GridExport, CellsAndCaps) {
  ModelStore model;
  PutProfile(model, 0, 1, {{1, 2, 0}, {3, 4, -5}});
  PutProfile(model, 1, 1, {{0, 0, 0}, {0, 0, 6.25}});
  model.Profile(4).topCap = 1;
  const GridExportSettings settings = {HeldInTable({0, 1, 1, 2}), true, 4};
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteSeparateCells(model, settings, CellFaces::Forward, out); }),
            "g layer0\r\nv 1 0 2\r\nv 3 5 4\r\nv 0 0 0\r\nf -3 -2 -1\r\nv 3 5 4\r\nv 0 -6.25 0\r\nv 0 0 0\r\n"
            "f -3 -2 -1\r\nv 0 0 0\r\nv 0 -6.25 0\r\nf -1 -2\r\n");
  RoundProfilePoints(model, 1);
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteJoinedCells(model, settings, out); }),
            "v 1 0 2\r\nv 3 5 4\r\nv 0 0 0\r\nv 0 -6.2 0\r\ng layer0\r\nf 1 2 4 3\r\n");
  const ProfileGrid held = HeldInTable({0, 62, 1, 7700});
  EXPECT_EQ(held.lastProfile + held.lastPoint, 72);
}

}  // namespace
}  // namespace pelorium
