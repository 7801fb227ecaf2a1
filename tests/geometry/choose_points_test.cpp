// Choosing points, each way by its own rule.
#include "geometry/choose_points.h"

#include <gtest/gtest.h>

#include <string>

#include "base/fault.h"

namespace pelorium {
namespace {

class ChoosePoints : public testing::Test {
 protected:
  ChoosePoints() {
    model.Part(1).maxpoints = 7;
    MarkPoints(model, 1, 0, 8, false);
  }

  // The marks of points 0..8, when both of them agree.
  std::string Marks() {
    std::string marks;
    for (int i = 0; i <= 8; ++i) {
      EXPECT_EQ(model.Points(1, i).onoff, model.PointMark(1, i)) << i;
      marks += static_cast<char>('0' + model.PointMark(1, i));
    }
    return marks;
  }

  ModelStore model;
};

TEST_F(ChoosePoints, LayersEndAtTheLastPoint) {
  MarkLayers(model, 1, {1, 2, 3}, true);
  EXPECT_EQ(Marks(), "000011110");
  MarkLayers(model, 1, {1, 1, 3}, false);
  EXPECT_EQ(Marks(), "000000010");
  MarkLayers(model, 1, {2, 1, 3}, true);  // nothing from the third to the second
  MarkLayers(model, 1, {0, 2, 0}, true);  // rings without points
  EXPECT_EQ(Marks(), "000000010");
}

TEST_F(ChoosePoints, InvertedBothWays) {
  MarkPoints(model, 1, 2, 3, true);
  model.PointMark(1, 4) = model.Points(1, 4).onoff = 7;  // a file may hold anything
  InvertPoints(model, 1, 1, 4);
  EXPECT_EQ(Marks(), "010010000");
}

TEST_F(ChoosePoints, ADistanceOfZeroIsTheCentreItself) {
  for (int i = 0; i <= 8; ++i) model.Points(1, i).X = i;  // Y and Z are 1
  MarkWithin(model, 1, {3, 1, 1}, 0, true);
  EXPECT_EQ(Marks(), "000100000");
  MarkWithin(model, 1, {0, 1, 3}, 2.5, true);
  EXPECT_EQ(Marks(), "110100000");
  MarkWithin(model, 1, {3, 1, 1}, 2, false);
  EXPECT_EQ(Marks(), "100000000");
  MarkWithin(model, 1, {8, 1, 1}, 1, true);  // point 8 is not in use
  EXPECT_EQ(Marks(), "100000010");
}

TEST_F(ChoosePoints, OnlyThoseBetweenTheBounds) {
  for (int i = 0; i <= 8; ++i) model.Points(1, i).Z = i;
  MarkPoints(model, 1, 0, 8, true);
  MarkOnlyBetween(model, 1, Axis::Z, 2, 4);
  EXPECT_EQ(Marks(), "101110001");
  MarkOnlyBetween(model, 1, Axis::Z, 4, 2);
  EXPECT_EQ(Marks(), "100000001");
}

TEST_F(ChoosePoints, ACornerOutsideTheTableIsPassedOver) {
  model.Faces(1, 1).corner2pt = 2;
  model.Faces(1, 1).group = 5;
  model.Faces(1, 2).corner1pt = 3;
  model.Faces(1, 2).corner2pt = kMaxPoints + 1;
  model.Faces(1, 2).corner3pt = -4;
  MarkCorners(model, 1, 1, 2, true, 5);
  EXPECT_EQ(Marks(), "011000000");
  MarkCorners(model, 1, 1, 2, true);
  EXPECT_EQ(Marks(), "011100000");
}

}  // namespace
}  // namespace pelorium
