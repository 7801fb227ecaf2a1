// Edits of the chosen points, and layers joined end to end.
#include "geometry/edit_chosen_points.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/fault.h"
#include "geometry/join_ends.h"

namespace pelorium {
namespace {

class EditChosenPoints : public testing::Test {
 protected:
  // Points 1..count of Part 1 at (n, 10 n, 100 n), all of them marked.
  void Lay(int count) {
    model.Part(1).maxpoints = static_cast<std::int16_t>(count);
    for (int n = 1; n <= count; ++n) {
      CopyPosition(model.Points(1, n), Vec3{1.0 * n, 10.0 * n, 100.0 * n});
      model.PointMark(1, n) = 1;
    }
  }
  std::vector<double> All(Axis axis) {
    std::vector<double> all;
    for (int n = 1; n <= model.Part(1).maxpoints; ++n) all.push_back(Coordinate(model.Points(1, n), axis));
    return all;
  }
  using Row = std::vector<double>;

  ModelStore model;
};

TEST_F(EditChosenPoints, StepsOverTheRangeAndLeavesUnmarkedPoints) {
  Lay(8);
  model.PointMark(1, 4) = 0;
  MoveChosen(model, {1, 2, 7, 2}, Axis::Y, 0.5);
  EXPECT_EQ(All(Axis::Y), (Row{10, 20.5, 30, 40, 50, 60.5, 70, 80}));
  ScaleChosen(model, {1, 6, 8, 1}, Axis::X, 3, {5, 0, 0});
  EXPECT_EQ(All(Axis::X), (Row{1, 2, 3, 4, 5, 8, 11, 14}));
  MoveChosen(model, {1, 5, 4, 1}, Axis::X, 1);  // an empty range
  EXPECT_EQ(All(Axis::X), (Row{1, 2, 3, 4, 5, 8, 11, 14}));
  EXPECT_THROW(MoveChosen(model, {1, 22999, 23001, 1}, Axis::X, 1), Fault);
}

TEST_F(EditChosenPoints, LayersJoinEndToEnd) {
  Lay(7);  // two layers of three, and one point more
  model.PointMark(1, 4) = 0;
  JoinLayerEnds(model, 1, 3, JoinedLayer::Last);
  EXPECT_EQ(All(Axis::X), (Row{1, 2, 3, 1, 2, 3, 7}));
  EXPECT_EQ(All(Axis::Z), (Row{100, 200, 300, 100, 200, 300, 700}));
  Lay(7);
  JoinLayerEnds(model, 1, 2, JoinedLayer::First);
  EXPECT_EQ(All(Axis::Y), (Row{50, 60, 30, 40, 50, 60, 70}));
  Lay(7);
  for (const int width : {4, 0, -2}) JoinLayerEnds(model, 1, width, JoinedLayer::First);
  EXPECT_EQ(All(Axis::X), (Row{1, 2, 3, 4, 5, 6, 7}));
}

}  // namespace
}  // namespace pelorium
