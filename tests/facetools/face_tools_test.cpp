// Measuring, flattening and unfolding single faces.
#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "base/numbers.h"
#include "facetools/draw_face.h"
#include "facetools/flatten_face.h"
#include "facetools/unfold.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class FaceTools : public testing::Test {
 protected:
  // Face `number` of Part 0 on the points 1, 2, 3; all of them in use and marked.
  void PutFace(int number, std::initializer_list<Vec3> places) {
    PutPoints(model, 0, 1, places);
    model.Faces(0, number) = {.corner1pt = 1, .corner2pt = 2, .corner3pt = 3};
    model.Part(0).maxpoints = static_cast<std::int16_t>(places.size());
    for (int i = 1; i <= kMaxPoints; ++i) model.PointMark(0, i) = 1;
  }
  static std::string Told(const EdgeLengths& l) {
    return GeneralForm(l.ab) + " " + GeneralForm(l.bc) + " " + GeneralForm(l.ca) + ": " +
           GeneralForm(Perimeter(l)) + ", " + GeneralForm(Area(l));
  }

  ModelStore model;
};

TEST_F(FaceTools, Measures) {
  const auto measured = [](Vec3 a, Vec3 b, Vec3 c) { return Told(LengthsOf({a, b, c})); };
  EXPECT_EQ(measured({0, 0, 5}, {3, 0, 5}, {3, 4, 5}), "3 4 5: 12, 6");
  EXPECT_EQ(measured({1, 1, 1}, {1, 1, 1}, {1, 1, 1}), "0 0 0: 0, 0");
  EXPECT_EQ(measured({0, 0, 0}, {0.004, 0, 0}, {0, 0.004, 0}), "0 0.01 0: 0.01, 0");
  EXPECT_DOUBLE_EQ(SlopeAngle(-2, 0), -1.5707963267948966);
  EXPECT_EQ(SlopeAngle(0, 0), 0);
  EXPECT_EQ(EdgeAngle({10, 4, 0}, {0, 4, 0}), 90.02);  // Atn(100000) * 57.30659
  EXPECT_EQ(EdgeAngle({0, 0, 0}, {5, -5, 0}), -45.01);
}

TEST_F(FaceTools, MatchingPointsLeaveTheCornersOwnNumberOut) {
  PutFace(1, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}, {1, 0, 1e-9}, {0, 0, 0}, {0, 1, 0}, {0, 0, 0}});
  model.Part(0).maxpoints = 7;
  const auto matching = MatchingPoints(model, 0, 1, 5);
  EXPECT_EQ(matching[0], (std::vector<int>{4, 6}));
  EXPECT_EQ(matching[1], (std::vector<int>{}));
  EXPECT_EQ(matching[2], (std::vector<int>{7}));
  EXPECT_EQ(MatchingPoints(model, 0, 1, 1)[0], (std::vector<int>{4}));
}

TEST_F(FaceTools, ThreeTurnsFlattenAnyFace) {
  for (const int face : {1, 2}) {
    PutFace(face, {{10, -20, 30}, {90, 40, -60}, {-50, 80, 20}});
    const std::string before = Told(LengthsOf(CornersOf(model, 0, face)));
    for (int step = 0; step < kFlatTurns; ++step) {
      TurnPoints(model, {0, 1, 3}, FlatTurn(model, 0, face, step), CornersOf(model, 0, face).c);
    }
    const FaceCorners flat = CornersOf(model, 0, face);
    EXPECT_NEAR(flat.a.Z, 20, 0.02);
    EXPECT_NEAR(flat.b.Z, 20, 0.02);
    EXPECT_EQ(flat.c, (Vec3{-50, 80, 20}));
    const Vec3& end = face == 1 ? flat.a : flat.c;  // the edge that was turned to the Y axis
    EXPECT_NEAR(flat.b.X, end.X, 0.02);
    EXPECT_EQ(Told(LengthsOf(flat)), before);
  }
  PutFace(1, {{2, 2, 2}, {2, 2, 2}, {2, 2, 2}});
  EXPECT_EQ(FlatTurn(model, 0, 1, 0).radians, 0);
  PutFace(1, {{0, 0, 0}, {5, 1, 0}, {1, 1, 0}});
  EXPECT_DOUBLE_EQ(EvenTurn(model, 0, 1).radians, 1.5707963267948966);
}

// The edge that lies in Z = 10 is the hinge.
TEST_F(FaceTools, LayingAFaceFoldsItDown) {
  PutFace(1, {{0, 0, 10}, {10, 0, 10}, {0, 10, 20}});
  EXPECT_NEAR(UnitNormal(model, 0, 1).Y, -std::sqrt(0.5), 1e-15);
  LayFace(model, 0, 1);
  EXPECT_EQ(PointsText(model, 0, 1, 3), "0 0 10 | 10 0 10 | 0 14.1421 10");
  PutFace(1, {{0, 0, 10}, {5, 5, 5}, {10, 10, 0}});
  LayFace(model, 0, 1);
  EXPECT_EQ(PointsText(model, 0, 1, 3), "0 0 10 | 5 5 5 | 10 10 0");
  EXPECT_EQ(UnitNormal(model, 0, 1), Vec3{});
}

TEST_F(FaceTools, SweptTriangles) {
  const auto swept = [](EdgeLengths l) {
    const FlatTriangle t = SweepTriangle(l);
    return RoundedForm(t.b.x, 4) + ": " + RoundedForm(t.c.x, 4) + " " + RoundedForm(t.c.y, 4);
  };
  EXPECT_EQ(swept({3, 4, 5}), "3: -0.007 4");          // 90.1 degrees
  EXPECT_EQ(swept({10, 10, 10}), "10: 4.9849 8.669");  // 60.1 degrees
  EXPECT_EQ(swept({10, 4, 5}), "10: 4 0");             // lies flat at once
  EXPECT_EQ(swept({1, 1, 5}), "1: -0.9403 -0.3404");   // never reached: 199.9 degrees
}

// A quad of 3 x 4, folded along its diagonal of 5.
TEST_F(FaceTools, APairIsLaidAndMeasured) {
  PutPoints(model, 0, 1, {{0, 0, 0}, {3, 0, 0}, {0, 4, 0}, {3, 0, 0}, {3, 4, 0}, {0, 4, 0}});
  model.Faces(0, 3) = {.c2X = 3, .c3Y = 4, .corner1pt = 1, .corner2pt = 2, .corner3pt = 3};
  model.Faces(0, 4) = {
      .c1X = 3, .c2X = 3, .c2Y = 4, .c3Y = 4, .corner1pt = 4, .corner2pt = 5, .corner3pt = 6};
  const LaidPair laid = FlattenPair(model, 0, 3, true, {100, 50, 7});
  PlaceTriangle(model, 0, 3, laid.first, 10);
  PlaceTriangle(model, 0, 4, laid.second, 10);
  // First: sides 3, 5, 4 (53.2 degrees at a); second 4, 3, 5 (90.1), its corner b at the origin.
  EXPECT_EQ(PointsText(model, 0, 1, 6),
            "100 50 10 | 103 50 10 | 102.9951 54.0037 10 | 96 50 10 | 100 50 10 | 95.9948 53 10");
  const PairAngles angles = MeasurePair(model, 0, 3);
  EXPECT_EQ(angles.first, 36.81);    // Atn(-2.9951 / -4.0035) * 57.30659
  EXPECT_EQ(angles.second, -53.18);  // Atn(-4.0052 / 3.0001)
  model.Part(0).maxpoints = 6;
  for (int i = 1; i <= 6; ++i) model.PointMark(0, i) = i <= 3 ? 1 : 0;
  MoveToOrigin(model, 0, 3, {1, 2, 99});
  EXPECT_EQ(PointsText(model, 0, 1, 4), "1 2 10 | 4 2 10 | 3.9951 6.0037 10 | 96 50 10");
  EXPECT_EQ(AngleToPairBefore(model, 0, 5), -89.93);  // b - c = 0.0049, -4.0037: g = -0.07
  EXPECT_NEAR(CentreOfPair(model, 0, 3).X, (1 + 4 + 3.9951 + 96 + 100 + 95.9948) / 6, 1e-4);
  EXPECT_THROW(FlattenPair(model, 0, kMaxFaces, true, {}), Fault);
  EXPECT_NO_THROW(FlattenPair(model, 0, kMaxFaces, false, {}));
}

TEST_F(FaceTools, ThePictureHoldsTheTriangleInItsColours) {
  PutFace(1, {{0, 0, 0}, {100, 0, 0}, {0, 100, 0}});
  Picture picture(200, 200);
  DrawFace(model, 0, 1, picture);
  EXPECT_EQ(picture.PixelAt(10, 189),
            static_cast<int>(Rgb(255, 80, 80)));  // corner 1: nine tenths of the side
  EXPECT_EQ(picture.PixelAt(189, 189), static_cast<int>(Rgb(80, 230, 80)));  // corner 2
  EXPECT_EQ(picture.PixelAt(10, 8), static_cast<int>(Rgb(110, 140, 255)));   // corner 3
  EXPECT_EQ(picture.PixelAt(100, 189), static_cast<int>(Rgb(255, 80, 80)));  // edge 1-2
  for (const int side : {1, 20}) {
    Picture small(side, side);
    DrawFace(model, 0, 1, small);
    EXPECT_EQ(small.Pixels().size(), static_cast<std::size_t>(side * side));
  }
  model.Faces(0, 1).corner2pt = 30000;
  EXPECT_THROW(DrawFace(model, 0, 1, picture), Fault);
}

}  // namespace
}  // namespace pelorium
