// The reports on profiles, to the byte.
#include "profiles/profile_report.h"

#include "support/harness.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

std::string Report(const ModelStore& model, ProfileReport kind) {
  return TextOf([&](TextWriter& out) { WriteProfileReport(model, kind, out); });
}

// Profile 0 has points 0 and 1, profile 36 the whole of its table.
TEST(ProfileReports, EveryFieldInItsPlace) {
  ModelStore model;
  NumberModel(model);
  EXPECT_TRUE(MatchesGolden(Digest(Report(model, ProfileReport::Points), {{1, 13}, {-4, -1}}),
                            "interchange/golden/profile_report_points.txt"));
  EXPECT_TRUE(MatchesGolden(Digest(Report(model, ProfileReport::Parametric), {{1, 32}, {-8, -1}}),
                            "interchange/golden/profile_report_parametric.txt"));
}

// 2.675 * 100 is 267.5 and goes to the even 268; the sides are 3, 4 and 5 long.
TEST(ProfileReports, LengthsGoBackToPointZero) {
  ModelStore model;
  model.Profile(0).count = 1;
  model.ProfilePts(0, 0).X = 2.675;
  model.ProfilePts(1, 0).X = 5.675, model.ProfilePts(1, 0).Z = -4;
  EXPECT_NE(Report(model, ProfileReport::Points)
                .find("profile pt# 0 Xloc:2.68 YLoc:0 ZLoc:0  Line Length to next point is: 5\r\n"
                      "profile pt# 1 Xloc:5.68 YLoc:0 ZLoc:-4  Line Length to next point is: 5 or N/A\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace pelorium
