// The points of an extrude, worked out by hand, and points that every setting moves.
#include "geometry/extrude.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "core/record_fields.h"
#include "support/model_text.h"

namespace pelorium {
namespace {

class Extrude : public ::testing::Test {
 protected:
  Extrude() {
    settings.lastSection = 3;
    PutProfile(model, 0, 0, {{10, 1, 4}, {20, 2, 5}, {30, 3, 6}, {40, 4, 7}});
  }
  std::string Points(int first, int last) const { return PointsText(model, 0, first, last); }

  ModelStore model;
  ExtrudeSettings settings;
};

TEST_F(Extrude, DefaultsStackTheDrawnRingAlongY) {
  model.PointMark(0, 5) = 0;
  EXPECT_EQ(LayExtrudedPoints(model, settings), 1 + 13 * 4);
  EXPECT_EQ(Points(1, 5), "10 0 4 | 20 0 5 | 30 0 6 | 40 0 7 | 10 10 4");
  EXPECT_EQ(Points(13 * 4, 13 * 4), "40 120 7");
  EXPECT_EQ(model.PointMark(0, 5), 1);
  settings.firstSection = 2;
  EXPECT_EQ(LayExtrudedPoints(model, settings), 1 + 13 * 2);
  EXPECT_EQ(Points(1, 3), "30 0 6 | 40 0 7 | 30 10 6");
}

// Each field of the settings has another number, and each effector is another profile. The positions were
// worked out apart from the program, term by term.
TEST_F(Extrude, EverySettingMovesThePoints) {
  int fields = 0;
  const auto fill = [&fields](auto& record) {
    for (const auto& field : FieldsOf<std::remove_cvref_t<decltype(record)>>()) {
      if (field.name == std::string("first") || field.name == std::string("count")) continue;  // no settings
      if (std::holds_alternative<double>(*GetField(record, field.name)))
        SetField(record, field.name, 0.5 + 0.0137 * ++fields);
    }
  };
  for (int profile = 0; profile <= 10; ++profile) {
    for (int point = 0; point <= 1; ++point) fill(model.ProfilePts(point, profile));
  }
  ProfileHeader& h = model.Profile(0);
  double next = 0;
  for (const char* field :
       {"originPathProfile", "pathProfileX", "pathProfileY", "pathProfileZ", "addProfile1X", "addProfile1Y",
        "addProfile1Z", "addProfile2X", "addProfile2Y", "addProfile2Z"}) {
    SetField(h, field, ++next);
  }
  h.genRotateX = 10, h.genTurnY = 20, h.genSpinZ = 30, h.genMoveX = 3, h.genMoveY = 4, h.genMoveZ = 5;
  h.genMultX = 1.5, h.genMultY = 2.5, h.genMultZ = 3.5, h.layerSpacing = 6, h.layerCount = 1;
  settings.lastSection = 1;
  settings.origin = {3.5, -4.25, 5.125};
  LayExtrudedPoints(model, settings);
  EXPECT_EQ(Points(1, 4),
            "52.6329 78.0016 107.4962 | 119.4552 225.0463 297.3981 | 76.7346 121.9389 352.0046 | "
            "175.8028 370.2267 954.577");
  settings.additive = true;
  LayExtrudedPoints(model, settings);
  EXPECT_EQ(Points(1, 4),
            "100.311 273.3477 424.0466 | 625.1285 1823.9961 1842.3431 | -599.5619 744.9051 3425.9147 | "
            "-2584.0013 4784.0096 15430.1066");
}

TEST_F(Extrude, NumbersOutsideTheTablesEndIt) {
  model.Profile(0).layerCount = 40;
  EXPECT_THROW(LayExtrudedPoints(model, settings), Fault);
  EXPECT_EQ(Points(37 * 4, 37 * 4), "40 360 7");
  model.Profile(0).layerCount = 12;
  model.Profile(0).addProfile2Y = 37;
  EXPECT_THROW(LayExtrudedPoints(model, settings), Fault);
}

}  // namespace
}  // namespace pelorium
