// Faces with points of their own: Disjoin and Subdivide.
#include <gtest/gtest.h>

#include "geometry/disjoin.h"
#include "geometry/subdivide.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

std::string Counts(const ModelStore& model) {
  return std::to_string(model.Part(0).maxpoints) + " points " + std::to_string(model.Part(0).maxfaces) +
         " faces";
}

// `faces` faces that are on, number f with its copies at (f, 0, 0), (f, 3, 0), (f, 0, 6), all on point 1.
void PutFaces(ModelStore& model, int faces) {
  PartHeader& header = model.Part(0);
  header.maxfaces = static_cast<std::int16_t>(faces);
  header.minfaces = 0;
  header.maxpoints = 1;
  header.grid = {{1, 1}};
  for (int f = 1; f <= faces; ++f) {
    FaceRec& face = model.Faces(0, f);
    face.c1X = face.c2X = face.c3X = f;
    face.c2Y = 3, face.c3Z = 6;
    face.group = static_cast<std::int16_t>(f % 40), face.vt2 = static_cast<std::int16_t>(f);
  }
}

TEST(DisjoinFaces, FacesThatAreOnMoveUpToPointsOfTheirOwn) {
  ModelStore model;
  PutFaces(model, 3);
  model.Faces(0, 1).onoff = 0;
  DisjoinFaces(model, 0);
  EXPECT_EQ(Counts(model), "6 points 2 faces");
  EXPECT_EQ(FacesText(model, 0, 1, 2), "1 2 3 | 4 5 6");
  EXPECT_EQ(PointsText(model, 0, 1, 6), "2 0 0 | 2 3 0 | 2 0 6 | 3 0 0 | 3 3 0 | 3 0 6");
  EXPECT_TRUE(model.Faces(0, 2).group == 3 && model.Faces(0, 2).vt2 == 3 && model.Faces(0, 2).c1X == 3);
  EXPECT_TRUE(model.PointMark(0, 6) == 1 && model.PointMark(0, 7) == 0 && model.Part(0).minfaces == 1);
  EXPECT_FALSE(model.Part(0).grid);
}

TEST(SubdivideFaces, EachFaceBecomesThreeAroundItsMiddle) {
  ModelStore model;
  PutFaces(model, 2);
  model.Faces(0, 1).onoff = 0;
  SubdivideFaces(model, 0);
  EXPECT_EQ(Counts(model), "9 points 3 faces");
  EXPECT_EQ(FacesText(model, 0, 1, 3), "1 2 3 | 4 5 6 | 7 8 9");
  EXPECT_EQ(PointsText(model, 0, 1, 9),
            "2 0 0 | 2 3 0 | 2 1 2 | 2 3 0 | 2 0 6 | 2 1 2 | 2 0 6 | 2 0 0 | 2 1 2");
  EXPECT_TRUE(model.Faces(0, 3).group == 2 && model.Faces(0, 3).vt2 == 0 && model.Faces(0, 3).c3Y == 1);
  SubdivideFaces(model, 0);
  EXPECT_EQ(Counts(model), "27 points 9 faces");
  EXPECT_FALSE(model.Part(0).grid);
}

TEST(SeparateFaces, EndWhereThePointsEnd) {
  struct Case {
    void (*rebuild)(ModelStore&, int);
    int faces;
    const char* counts;
    const char* last;  // the last point in use, or the first of the table
  };
  for (const Case& c :
       std::initializer_list<Case>{{DisjoinFaces, 0, "0 points 0 faces", "1 1 1"},
                                   {DisjoinFaces, 7666, "22998 points 7666 faces", "7666 0 6"},
                                   {DisjoinFaces, 7700, "22998 points 7666 faces", "7666 0 6"},
                                   {SubdivideFaces, 0, "0 points 0 faces", "1 1 1"},
                                   {SubdivideFaces, 2555, "22995 points 7665 faces", "2555 1 2"},
                                   {SubdivideFaces, 2556, "22998 points 7666 faces", "2556 1 2"},
                                   {SubdivideFaces, 7700, "22998 points 7666 faces", "2556 1 2"}}) {
    ModelStore model;
    PutFaces(model, c.faces);
    c.rebuild(model, 0);
    EXPECT_EQ(Counts(model), c.counts);
    EXPECT_EQ(PointsText(model, 0, model.Part(0).maxpoints, model.Part(0).maxpoints), c.last) << c.faces;
  }
}

}  // namespace
}  // namespace pelorium
