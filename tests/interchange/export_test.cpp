// What the exports measure, and texts that are no export of ours.
#include <gtest/gtest.h>

#include "base/fault.h"
#include "interchange/obj_export.h"
#include "interchange/object_info.h"
#include "interchange/text_part.h"
#include "interchange/xyz_files.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

TEST(Exports, AnEmptyModelGivesAnEmptyObj) {
  const ModelStore model;
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteObj(model, {}, out); }), "");
}

// A triangle of sides 3, 4 and 5; and lengths 1.01, 0.5 and 0.5 once rounded: no triangle, and no area.
TEST(Exports, AreasComeOfRoundedLengths) {
  ModelStore model;
  FaceRec& face = model.Faces(1, 1);
  model.Part(1).maxfaces = 1;
  face.c2X = 3, face.c3Z = 4;
  EXPECT_EQ(EstimatedArea(model, 1), 6);
  face.c2X = 1.006, face.c3X = 0.503, face.c3Z = 0;
  EXPECT_EQ(EstimatedArea(model, 1), 0);
}

TEST(Exports, TextPartWithOtherCountsIsAFault) {
  ModelStore model;
  EXPECT_THROW(ReadTextPart(model, 1, "Part Name\r\nx\r\n\r\n2 1 0 1\r\n\r\n1 0 0 0 1\r\nFace#"), Fault);
  EXPECT_THROW(ReadTextPart(model, 1, ""), Fault);
  EXPECT_THROW(ReadTextPart(model, 1, "\n\n\n30000 1 0 1\n"), Fault);
  EXPECT_EQ(model.Part(1).maxpoints, 2);  // the first text's: counts that no table holds change nothing
}

TEST(Exports, SeparateFacesGetPointsOfTheirOwn) {
  ModelStore model;
  ReadSeparateFaces(model, 1, "0 1 2 3 4 5 6 7 8 10 11 12 13 14 15 16 17 18 1 2 3 4");  // four are left over
  EXPECT_EQ(model.Part(1).maxfaces, 2);
  EXPECT_EQ(model.Part(1).maxpoints, 6);
  EXPECT_EQ(model.Points(1, 4).X, 10);
  EXPECT_EQ(model.Points(1, 6).Y, 17);
  EXPECT_EQ(model.Points(1, 3).Z, 8);
  EXPECT_EQ(model.Faces(1, 2).corner1pt, 4);
  EXPECT_EQ(model.Faces(1, 2).corner3pt, 6);
}

TEST(Exports, ProfilePositionsMayEndEarly) {
  ModelStore model;
  ReadProfilePositions(model, "1 2 3 4 5");
  EXPECT_EQ(model.ProfilePts(0, 1).Y, 5);
  EXPECT_EQ(model.ProfilePts(0, 1).Z, 0);
  EXPECT_THROW(ReadProfilePositions(model, "1 2 x"), Fault);
}

}  // namespace
}  // namespace pelorium
