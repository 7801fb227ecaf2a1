// The profile file's reader, which knows no second effector. The format itself: interchange/golden.
#include "core/profile_file.h"

#include "support/harness.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

// A file of the writer's: from line 7 on all items land three places further on.
TEST(ProfileFile, AWrittenFileComesBackShifted) {
  ModelStore model, read;
  ProfileHeader& header = model.Profile(0);
  header.addProfile1Z = 4, header.addProfile2X = 5, header.addProfile2Z = 7;
  ReadProfileFile(read, TextOf([&](TextWriter& out) { WriteProfiles(model, out); }));
  EXPECT_EQ(read.Profile(0).addProfile1Z, 4);
  EXPECT_EQ(read.ProfilePts(0, 0).X, 5);
  EXPECT_EQ(read.ProfilePts(0, 0).Z, 7);
}

TEST(ProfileFile, FaultsKeepWhatWasRead) {
  ModelStore model;
  EXPECT_THROW(ReadProfileFile(model, "5 6 x"), Fault);
  EXPECT_EQ(model.Profile(0).genTurnY, 6);
  EXPECT_THROW(ReadProfileFile(model, "1 2 3 4 5 6 7 8 9 1 40000"), Fault);
  EXPECT_EQ(model.Profile(0).bottomCap, 1);
  EXPECT_EQ(model.Profile(0).topCap, 0);
  EXPECT_THROW(ReadProfileFile(model, ""), Fault);
}

TEST(ProfileFile, CountsAreHeldInTheTable) {
  ModelStore model;
  std::string items;
  for (int i = 0; i < 37 * (21 + 37 * 26); ++i) items += "99 ";
  ReadProfileFile(model, items);
  for (int profile = 0; profile <= kMaxProfile; ++profile) EXPECT_EQ(model.Profile(profile).count, 36);
  EXPECT_EQ(model.Profile(36).first, 99);
}

}  // namespace
}  // namespace pelorium
