// Welding by place, and copies from Part to Part.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "base/random_series.h"
#include "geometry/conjoin.h"
#include "geometry/copy_nearest.h"
#include "geometry/part_copies.h"
#include "support/harness.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

void PutFace(ModelStore& model, int part, int number, int a, int b, int c) {
  FaceRec& face = model.Faces(part, number);
  face.corner1pt = a, face.corner2pt = b, face.corner3pt = c;
}

// Every pair of corners of every ordered pair of faces: both get the lower number of two on one place.
void PlainConjoin(ModelStore& model, int part, int faces) {
  constexpr std::int32_t FaceRec::*kCorners[] = {&FaceRec::corner1pt, &FaceRec::corner2pt,
                                                 &FaceRec::corner3pt};
  for (int i = 1; i <= faces; ++i) {
    for (int j = 1; j <= faces; ++j) {
      for (const auto a : kCorners) {
        for (const auto b : kCorners) {
          std::int32_t &p = model.Faces(part, i).*a, &q = model.Faces(part, j).*b;
          const PointRec &x = model.Points(part, p), &y = model.Points(part, q);
          if (x.X == y.X && x.Y == y.Y && x.Z == y.Z) p = q = std::min(p, q);
        }
      }
    }
  }
}

TEST(Conjoin, EqualsAllPairs) {
  RandomSeries random;
  const auto below = [&](int limit) { return static_cast<int>(random.Next() * limit); };
  for (const int places : {1, 3, 12, 1000}) {
    ModelStore model, plain;
    constexpr int kFaces = 150, kPoints = 300;
    for (int n = 1; n <= kPoints; ++n) {
      PutPoints(model, 0, n, {{below(2) == 0 ? 0.0 : -0.0, 0.1 * below(places), 1.0 * below(2)}});
      if (n == 7) model.Points(0, n).Y = std::nan("");
      plain.Points(0, n) = model.Points(0, n);
    }
    for (int f = 1; f <= kFaces; ++f) {
      PutFace(model, 0, f, 1 + below(kPoints), 1 + below(kPoints), 1 + below(kPoints));
      plain.Faces(0, f) = model.Faces(0, f);
    }
    model.Part(0).maxpoints = kPoints;
    model.Part(0).maxfaces = kFaces;
    ConjoinCorners(model, 0);
    PlainConjoin(plain, 0, kFaces);
    EXPECT_EQ(FacesText(model, 0, 1, kFaces), FacesText(plain, 0, 1, kFaces)) << places;
  }
}

TEST(Conjoin, PointsWithoutAFaceGoOff) {
  ModelStore model;
  PutPoints(model, 0, 1, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}, {9, 9, 9}});
  CopyPosition(model.Points(0, 0), Vec3{1, 1, 0});
  PutFace(model, 0, 1, 1, 2, 3);
  PutFace(model, 0, 2, 6, 5, 4);
  PutFace(model, 0, 3, 0, 6, 5);  // 0 is no point of the Part
  model.Part(0).maxpoints = 7;
  model.Part(0).maxfaces = 3;
  for (int n = 1; n <= 7; ++n) model.PointMark(0, n) = 1;
  ConjoinCorners(model, 0);
  SwitchOffUnused(model, 0);
  EXPECT_EQ(FacesText(model, 0, 1, 3), "1 2 3 | 6 3 2 | 0 6 3");
  std::string marks;
  for (int n = 1; n <= 7; ++n)
    marks += std::to_string(model.Points(0, n).onoff) + std::to_string(model.PointMark(0, n));
  EXPECT_EQ(marks, "11111100001100");
  model.Faces(0, 3).corner2pt = kMaxPoints + 1;
  PutFace(model, 0, 1, 1, 4, 3);
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { ConjoinCorners(model, 0); }));
  EXPECT_EQ(FacesText(model, 0, 1, 1), "1 4 3");
}

TEST(CopyNearest, TheLowestNumberOfSeveral) {
  RandomSeries random;
  for (const double step : {0.0, 1.0}) {  // a cloud, and a lattice full of ties
    auto model = std::make_unique<ModelStore>();
    constexpr int kFrom = 400;
    const auto place = [&] {
      const double at = random.Next() * 10;
      return step > 0 ? std::floor(at) : at;
    };
    model->Part(1).maxpoints = kFrom;
    for (int n = 1; n <= kFrom; ++n) PutPoints(*model, 1, n, {{place(), place(), place()}});
    model->Points(1, 5).X = std::numeric_limits<double>::infinity();
    for (int n = 1; n <= 300; ++n) {
      PutPoints(*model, 0, n, {{place() + step / 2, place(), place() * 2}});
      model->PointMark(0, n) = n % 3 == 0 ? 0 : 1;
      const PointRec p = model->Points(0, n);
      const std::string before = PointsText(*model, 0, n, n);
      int best = 1;
      const auto square = [&](int i) {
        const PointRec& q = model->Points(1, i);
        return (p.X - q.X) * (p.X - q.X) + (p.Y - q.Y) * (p.Y - q.Y) + (p.Z - q.Z) * (p.Z - q.Z);
      };
      for (int i = 2; i <= kFrom; ++i) best = square(i) < square(best) ? i : best;
      CopyNearest(*model, {0, n, n}, 1);
      EXPECT_EQ(PointsText(*model, 0, n, n), n % 3 == 0 ? before : PointsText(*model, 1, best, best));
    }
  }
}

// A Part of three points and three faces, the second off; Part 1 holds two points and a face.
class Copies : public testing::Test {
 protected:
  Copies() {
    PutPoints(model, 0, 1, {{1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
    model.PointMark(0, 1) = model.PointMark(0, 3) = 1;
    model.Points(0, 3).onoff = 0;
    for (int f = 1; f <= 3; ++f) PutFace(model, 0, f, f, f % 3 + 1, (f + 1) % 3 + 1);
    model.Faces(0, 2).onoff = 0;
    model.Faces(0, 3).group = 5;
    model.Faces(0, 3).c2Y = 8;
    model.Part(0).maxpoints = model.Part(0).maxfaces = 3;
    model.Part(1).maxpoints = 2;
    model.Part(1).maxfaces = model.Part(1).minfaces = 1;
    model.Part(1).grid = {2, 1};
  }
  std::string Counts(int part) {
    const PartHeader& header = model.Part(part);
    return std::to_string(header.maxpoints) + " " + std::to_string(header.maxfaces);
  }
  std::string Marks(int from, int to) {
    std::string marks;
    for (int i = from; i <= to; ++i)
      marks += std::to_string(model.Points(1, i).onoff) + std::to_string(model.PointMark(1, i)) + " ";
    return marks;
  }

  ModelStore model;
};

TEST_F(Copies, BehindAndAtOffsets) {
  CopyPart(model, Appended(model, 0, 1));
  EXPECT_EQ(Counts(1), "5 3");
  EXPECT_EQ(PointsText(model, 1, 3, 5), "1 0 0 | 2 0 0 | 3 0 0");
  EXPECT_EQ(Marks(3, 5), "11 10 01 ");
  EXPECT_EQ(FacesText(model, 1, 2, 3), "3 4 5 | 5 3 4");
  EXPECT_EQ(model.Faces(1, 3).group, 5);
  EXPECT_EQ(model.Faces(1, 3).c2Y, 8);
  EXPECT_FALSE(model.Part(1).grid);
  CopyPart(model, {0, 1, 10, 4, false});
  EXPECT_EQ(Counts(1), "5 6");  // faces alone
  EXPECT_EQ(FacesText(model, 1, 5, 6), "11 12 13 | 13 11 12");
  CopyPart(model, {0, 0, 1, 0});  // over itself
  EXPECT_EQ(PointsText(model, 0, 1, 4), "1 0 0 | 1 0 0 | 2 0 0 | 3 0 0");
  EXPECT_EQ(FacesText(model, 0, 1, 2), "2 3 4 | 4 2 3");
  EXPECT_EQ(Counts(0), "4 2");
}

TEST_F(Copies, Disjoint) {
  CopyPartDisjoint(model, {0, 1, 2, 1, false});
  EXPECT_EQ(Counts(1), "8 3");
  EXPECT_EQ(FacesText(model, 1, 2, 3), "3 4 5 | 6 7 8");
  EXPECT_EQ(PointsText(model, 1, 6, 8), "0 0 0 | 0 8 0 | 0 0 0");  // the face's own copies
  EXPECT_EQ(Marks(3, 8), "11 11 11 11 11 11 ");
}

TEST_F(Copies, WhatFitsIsWritten) {
  CopyPart(model, {0, 1, 22999, 7699});
  EXPECT_EQ(Counts(1), "23000 7700");
  EXPECT_EQ(PointsText(model, 1, 23000, 23000), "1 0 0");
  EXPECT_EQ(FacesText(model, 1, 7700, 7700), "23000 23000 23000");
  CopyPart(model, {0, 1, 23000, 7700});
  EXPECT_EQ(Counts(1), "23000 7700");
  CopyPartDisjoint(model, {0, 1, 22996, 7690});
  EXPECT_EQ(Counts(1), "22999 7691");
}

}  // namespace
}  // namespace pelorium
