// Copying, appending, erasing and moving Parts.
#include "core/part_operations.h"

#include <gtest/gtest.h>

#include "core/copy_part.h"
#include "core/erase_part.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

// "23000 points from 1, 7700 faces from 1" and whether the Part is still a laid body.
std::string Counts(const ModelStore& model, int part) {
  const PartHeader& h = model.Part(part);
  return std::to_string(h.maxpoints) + " from " + std::to_string(h.minpoints) + ", " +
         std::to_string(h.maxfaces) + " from " + std::to_string(h.minfaces) + (h.grid ? ", laid" : "");
}

// Part 0: a laid triangle with a marked, an unmarked and a point that is off, in group 7 and with a mapping.
void PutTriangle(ModelStore& model) {
  PutPoints(model, 0, 1, {{10, 20, 30}, {11, 21, 31}, {12, 22, 32}});
  model.PointMark(0, 1) = 1;
  model.Points(0, 3).onoff = 0;
  model.Points(0, 1).u = 0.25;
  FaceRec& face = model.Faces(0, 1);
  face.corner1pt = 3, face.corner2pt = 2, face.corner3pt = 1;
  face.c1X = 0.1, face.c3Z = 0.9;
  face.group = 7, face.onoff = 0, face.vt1 = 5;
  PartHeader& header = model.Part(0);
  header.maxpoints = 3, header.maxfaces = 1, header.minfaces = 0;
  header.Sections = 9, header.PartName = "a triangle", header.vtcount = 77, header.grid = {{1, 1}};
}

TEST(CopyPart, TakesAllButTheMapping) {
  ModelStore model;
  PutTriangle(model);
  model.Part(3).grid = {{2, 2}};
  model.Faces(3, 1).vt1 = 8;
  CopyPart(model, 0, 3);
  EXPECT_EQ(Counts(model, 3), "3 from 1, 1 from 0");
  EXPECT_EQ(PointsText(model, 3, 1, 3), "10 20 30 | 11 21 31 | 12 22 32");
  EXPECT_EQ(FacesText(model, 3, 1, 1), "3 2 1");
  const FaceRec& face = model.Faces(3, 1);
  EXPECT_TRUE(face.c1X == 0.1 && face.c3Z == 0.9 && face.group == 7 && face.onoff == 0 && face.vt1 == 8);
  EXPECT_TRUE(model.PointMark(3, 1) == 1 && model.PointMark(3, 2) == 0 && model.Points(3, 3).onoff == 0);
  EXPECT_TRUE(model.Part(3).PartName == "a triangle" && model.Part(3).Sections == 9);
  EXPECT_TRUE(model.Part(3).vtcount == 1 && model.Points(3, 1).u == 1);
}

TEST(CopyPart, TwiceIntoAPartDoublesIt) {
  ModelStore model;
  PutTriangle(model);
  CopyPart(model, 0, 3);
  model.Part(0).PartName = "kept";
  model.Part(0).maxfaces = -1;
  AppendPart(model, 3, 0);
  AppendPart(model, 3, 0);
  EXPECT_EQ(Counts(model, 0), "9 from 1, 2 from 0");
  EXPECT_EQ(FacesText(model, 0, 1, 2), "6 5 4 | 9 8 7");
  EXPECT_EQ(PointsText(model, 0, 7, 9), "10 20 30 | 11 21 31 | 12 22 32");
  EXPECT_TRUE(model.Faces(0, 2).c1X == 0.1 && model.Faces(0, 2).group == 7 && model.PointMark(0, 8) == 0);
  EXPECT_EQ(model.Part(0).PartName, "kept");
}

TEST(CopyPart, WhatFitsIsAppended) {
  struct Case {
    std::int16_t points, faces;
    const char* counts;
    int shown;
    const char* corners;
  };
  for (const Case& c : std::initializer_list<Case>{
           {22996, 0, "22999 from 1, 2 from 0", 2, "22999 22998 22997 | 22998 22997 22997"},
           {22997, 0, "23000 from 1, 2 from 0", 2, "23000 22999 22998 | 22999 22998 22998"},
           {22998, 0, "23000 from 1, 1 from 0", 1, "23000 22999 22999"},
           {23000, 5, "23000 from 1, 5 from 0", 0, ""},
           {0, 7698, "3 from 1, 7700 from 0", 7700, "3 2 1 | 2 1 1"},
           {0, 7699, "3 from 1, 7700 from 0", 7700, "1 1 1 | 3 2 1"}}) {
    ModelStore model;
    PutTriangle(model);
    model.Part(0).maxfaces = 2;
    model.Faces(0, 2).corner1pt = 2;
    CopyPart(model, 0, 3);
    model.Part(1).maxpoints = c.points;
    model.Part(1).maxfaces = c.faces;
    AppendPart(model, 3, 1);
    EXPECT_EQ(Counts(model, 1), c.counts);
    EXPECT_EQ(FacesText(model, 1, std::max(1, c.shown - 1), c.shown), c.corners);
  }
}

TEST(ErasePart, LeavesOnePointAndOneFace) {
  ModelStore model;
  PutTriangle(model);
  model.Faces(0, kMaxFaces).corner1pt = 4;
  ErasePart(model, 0);
  EXPECT_EQ(Counts(model, 0), "1 from 1, 1 from 1");
  EXPECT_EQ(PointsText(model, 0, 2, 3) + FacesText(model, 0, kMaxFaces, kMaxFaces), "1 1 1 | 1 1 11 1 1");
  const FaceRec& face = model.Faces(0, 1);
  EXPECT_TRUE(face.c1X == 1 && face.c3Z == 1 && face.group == 1 && face.onoff == 1 && face.vt1 == 5);
  EXPECT_TRUE(model.Points(0, 3).onoff == 1 && model.PointMark(0, kMaxPoints) == 1);
  EXPECT_TRUE(model.Part(0).PartName == "a triangle" && model.Part(0).vtcount == 77);
}

TEST(ErasePart, FacesAloneKeepTheCounts) {
  ModelStore model;
  PutTriangle(model);
  model.Part(0).maxfaces = 2;
  model.Faces(0, 2).corner2pt = 3;
  EraseFacesTurnedOff(model, 0);
  EXPECT_EQ(FacesText(model, 0, 1, 2), "1 1 1 | 1 3 1");
  EXPECT_TRUE(model.Faces(0, 1).onoff == 0 && model.Points(0, 3).onoff == 1 && model.PointMark(0, 2) == 1);
  EraseFaces(model, 0);
  EXPECT_EQ(FacesText(model, 0, 1, 2), "1 1 1 | 1 1 1");
  EXPECT_EQ(model.Faces(0, 1).onoff, 1);
  EXPECT_EQ(Counts(model, 0), "3 from 1, 2 from 0");
}

TEST(MovePartTo, MovesTheWholeTableButElementZero) {
  ModelStore model;
  PutTriangle(model);
  MovePartTo(model, 0, {1, 2, 3});
  EXPECT_EQ(PointsText(model, 0, 0, 2), "1 1 1 | 1 2 3 | 2 3 4");
  EXPECT_EQ(PointsText(model, 0, kMaxPoints, kMaxPoints), "-8 -17 -26");
  EXPECT_EQ(Counts(model, 0), "3 from 1, 1 from 0, laid");
}

}  // namespace
}  // namespace pelorium
