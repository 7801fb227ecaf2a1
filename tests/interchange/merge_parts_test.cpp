// One Part of both, through a scratch file.
#include "interchange/merge_parts.h"

#include <gtest/gtest.h>

#include "support/harness.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

namespace fs = std::filesystem;

std::string Counts(const ModelStore& model, int part) {
  return std::to_string(model.Part(part).maxpoints) + " points " + std::to_string(model.Part(part).maxfaces) +
         " faces";
}

void PutFace(ModelStore& model, int part, int number, int a, int b, int c) {
  FaceRec& face = model.Faces(part, number);
  face.corner1pt = a, face.corner2pt = b, face.corner3pt = c;
  model.Part(part).maxfaces = static_cast<std::int16_t>(std::max<int>(model.Part(part).maxfaces, number));
}

// Part 0: two points and two faces, one of them off. Part 1: a triangle in group 5, laid.
class MergeParts : public FolderTest {
 protected:
  MergeParts() {
    PutPoints(model, 0, 1, {{1.00049, 2.0625, -3}, {4, 5, 6}});
    PutPoints(model, 1, 1, {{7, 8, 9}, {10, 11, 12}, {-0.0004, 14, 15}});
    model.Part(0).maxpoints = 2, model.Part(1).maxpoints = 3;
    PutFace(model, 0, 1, 1, 2, 2);
    PutFace(model, 0, 2, 2, 1, 1);
    model.Faces(0, 1).onoff = 0;
    PutFace(model, 1, 1, 3, 2, 1);
    model.Faces(1, 1).group = 5;
    model.Part(1).PartName = "second";
    model.Part(1).grid = {{3, 1}};
  }

  static constexpr const char* kFile =
      "v 1 -3 2.062\r\nv 4 6 5\r\nv 7 9 8\r\nv 10 12 11\r\nv 0 15 14\r\nf 2 1 1\r\nf 5 4 3\r\n";

  // Combines into Part 1; what the Parts are afterwards.
  std::string Combined(OtherParts others) {
    CombineParts(model, 1, others, {folder() / "temp.obj", {}});
    return Counts(model, 0) + ", " + Counts(model, 1);
  }

  ModelStore model;
};

TEST_F(MergeParts, TheFileHoldsBothPartsAndTheFacesThatAreOn) {
  StringSink sink;
  TextWriter out(sink);
  WriteMergedParts(model, out);
  out.Flush();
  EXPECT_EQ(sink.text(), kFile);
  FailingSink full(20);
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] {
    TextWriter writer(full);
    WriteMergedParts(model, writer);
    writer.Flush();
  }));
}

TEST_F(MergeParts, TheOtherPartStaysOrIsErased) {
  EXPECT_EQ(Combined(OtherParts::Stay), "2 points 2 faces, 5 points 2 faces");
  EXPECT_EQ(PointsText(model, 1, 1, 5), "1 2.062 -3 | 4 5 6 | 7 8 9 | 10 11 12 | 0 14 15");
  EXPECT_EQ(FacesText(model, 1, 1, 2), "2 1 1 | 5 4 3");
  EXPECT_TRUE(model.Faces(1, 1).group == 5 && model.Part(1).PartName == "second" && !model.Part(1).grid);
  EXPECT_EQ(BytesOf(folder() / "temp.obj"), kFile);
  EXPECT_EQ(Combined(OtherParts::AreErased), "1 points 1 faces, 7 points 3 faces");
  EXPECT_EQ(PointsText(model, 0, 1, 2) + FacesText(model, 0, 1, 1), "1 1 1 | 1 1 11 1 1");
  EXPECT_TRUE(model.Faces(1, 1).group == 1 && model.PointMark(1, 7) == 1 &&
              model.Part(1).PartName == "second");
}

TEST_F(MergeParts, SumsEndAtTheTables) {
  struct Case {
    std::int16_t points, faces;  // of Part 0; the faces are all on
    const char* counts;          // of Part 1, which has 3 points and a face, or of the result
    bool fits;
  };
  for (const Case& c : std::initializer_list<Case>{{22997, 1, "23000 points 2 faces", true},
                                                   {22998, 1, "3 points 1 faces", false},
                                                   {2, 7699, "5 points 7700 faces", true},
                                                   {2, 7700, "3 points 1 faces", false}}) {
    ModelStore fresh;
    fresh.Part(0).maxpoints = c.points, fresh.Part(0).maxfaces = c.faces;
    fresh.Part(1).maxpoints = 3;
    PutFace(fresh, 1, 1, 3, 2, 1);
    const auto combine = [&] { CombineParts(fresh, 1, OtherParts::AreErased, {folder() / "temp.obj", {}}); };
    if (c.fits) {
      EXPECT_NO_THROW(combine());
    } else {
      EXPECT_TRUE(Raises(FaultKind::Subscript, combine));
      EXPECT_EQ(FacesText(fresh, 1, 1, 1), "3 2 1");
    }
    EXPECT_EQ(Counts(fresh, 1), c.counts);
  }
}

TEST_F(MergeParts, OddCornersAndLongLines) {
  model.Points(0, 1) = {-1234567.125, -1234567.125, -1234567.125};
  PutFace(model, 0, 2, 0, 2, 2);
  PutFace(model, 1, 1, 23000, -1, 1);
  EXPECT_EQ(Combined(OtherParts::Stay), "2 points 2 faces, 5 points 2 faces");
  EXPECT_EQ(FacesText(model, 1, 1, 2), "0 2 2 | 23000 1 3");
  // The line "v -1234567.125 -1234567.125 -1234567.125" ends behind its 34th character.
  EXPECT_EQ(PointsText(model, 1, 1, 1), "-1234567.125 -12345 -1234567.125");
  PutFace(model, 0, 2, -1, 2, 2);
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { Combined(OtherParts::AreErased); }));
  EXPECT_EQ(Counts(model, 1), "5 points 2 faces");
}

TEST_F(MergeParts, TheFileGoesWhereItCan) {
  const fs::path missing = folder() / "missing" / "temp.obj", spare = folder() / "spare.obj";
  CombineParts(model, 1, OtherParts::Stay, {missing, spare});
  EXPECT_EQ(Counts(model, 1), "5 points 2 faces");
  EXPECT_FALSE(fs::exists(spare));
  for (const fs::path& own : {missing, fs::path("/dev/full"), fs::path("/dev/null"), folder()}) {
    EXPECT_TRUE(Raises(FaultKind::FileError, [&] {
      CombineParts(model, 1, OtherParts::AreErased, {own, missing});
    })) << own;
  }
  EXPECT_EQ(Counts(model, 0) + ", " + Counts(model, 1), "2 points 2 faces, 5 points 2 faces");
  EXPECT_EQ(ScratchPlacesFor("/home/a b", "\\parts1\\temp.obj").own, "/home/a b/parts1/temp.obj");
}

}  // namespace
}  // namespace pelorium
