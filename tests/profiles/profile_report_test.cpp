// The reports on profiles, to the byte.
#include "profiles/profile_report.h"

#include <gtest/gtest.h>

#include <string>

#include "base/random_series.h"

namespace pelorium {
namespace {

class ProfileReportText : public ::testing::Test {
 protected:
  ProfileReportText() {
    ResetModel(model, random);
    model.Profile(0).count = 1;
    model.ProfilePts(0, 0).X = 2.675;
    model.ProfilePts(1, 0).X = 5.675, model.ProfilePts(1, 0).Z = -4;
  }

  std::string Text(ProfileReport kind) const {
    StringSink sink;
    TextWriter out(sink);
    WriteProfileReport(model, kind, out);
    out.Flush();
    return sink.text();
  }

  RandomSeries random;
  ModelStore model;
};

TEST_F(ProfileReportText, PointsWithTheirLengths) {
  const std::string expected =
      "  \r\n"
      " Exported by Pelorium   \r\n"
      "       \r\n"
      "---------------------------- Profile# 0-------------------------------\r\n"
      "profile pt# 0 Xloc:2.68 YLoc:0 ZLoc:0  Line Length to next point is: 5\r\n"
      "profile pt# 1 Xloc:5.68 YLoc:0 ZLoc:-4  Line Length to next point is: 5 or N/A\r\n"
      "  \r\n"
      "  \r\n"
      "---------------------------- Profile# 1-------------------------------\r\n"
      "profile pt# 0 Xloc:0 YLoc:0 ZLoc:0  Line Length to next point is: 0 or N/A\r\n"
      "  \r\n";
  EXPECT_EQ(Text(ProfileReport::Points).substr(0, expected.size()), expected);
}

TEST_F(ProfileReportText, SettingsOfProfileAndLayers) {
  ProfileHeader& h = model.Profile(0);
  h.genRotateX = 1.125, h.bottomCap = 1, h.addProfile2Z = 4;
  model.ProfilePts(0, 0).spinZ = 10.5, model.ProfilePts(0, 0).rotateX = 3;
  model.ProfilePts(0, 0).addZAmt2 = 1.0 / 3;
  const std::string text = Text(ProfileReport::Parametric);
  const std::string expected =
      "0-------------------------------\r\n"
      "Parametric info for extrude operation:  \r\n"
      "General Z axis Angle 1.125 General Y axis angle0 General Z axis angle0\r\n"
      " General move X amnt0 General move Y amnt 0 General move Z amnt 0\r\n"
      " General mult X amnt 1 General mult Y amnt 1 General mult Z amnt 1\r\n"
      " Bot Cap 0=no 1 = yes 1 Top Cap 0=no 1 = yes 0 Number of Layers 12 Prof# for Origin path30\r\n"
      " Profile for X add 30 Profile for Y add 30 Profile for Z add30 Layer to Layer spacing 10\r\n"
      " Profile for X mult 30  Profile for Y mult 30 Profile for Z mult 30\r\n"
      " Profile for X mult 30 Profile for Y mult 30 Profile for Z mult4\r\n"
      "profile pt# 0 Xloc:2.68 YLoc:0 ZLoc:0  Line Length to next point is: 5\r\n"
      " Z Axis Angle10.5 Y Axis Angle0 Z Axis Angle 3\r\n"
      " Move X amnt 0 Move Y amnt0 Move Z amnt 0\r\n"
      " Mult X amnt 1 Mult Y amnt 1 Mult Z amnt 1\r\n"
      " Mult X amnt from additve profile #1 0 Mult Y amnt from additve profile #1  0"
      " Mult Z amnt from additve profile #1 0\r\n"
      " Mult X amnt from additve profile #2 0 Mult Y amnt from additve profile #2  0"
      " Mult Z amnt from additve profile #2 0.333333333333333\r\n"
      "profile pt# 1 ";
  const std::size_t at = text.find("0-----");
  EXPECT_EQ(text.substr(at, expected.size()), expected);
}

}  // namespace
}  // namespace pelorium
