// Every field of every record in each format: the text to the byte, and what comes back of it.
#include "core/profile_file.h"
#include "core/project_file.h"
#include "interchange/material_file.h"
#include "interchange/material_settings.h"
#include "interchange/obj_export.h"
#include "interchange/object_info.h"
#include "interchange/text_part.h"
#include "interchange/texture_file.h"
#include "interchange/uvs_file.h"
#include "interchange/xyz_files.h"
#include "support/harness.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

const Losses kPosition = {{"X", "Y", "Z"}, {}};
const Losses kNothing = {};

class Formats : public ::testing::Test {
 protected:
  Formats() { NumberModel(model); }

  static ::testing::AssertionResult Matches(const std::string& text, const std::string& name) {
    return MatchesGolden(text, "interchange/golden/" + name);
  }

  void ExpectProfilesKept(const Losses& ofHeaders, const Losses& ofPoints) const {
    for (int profile = 0; profile <= kMaxProfile; ++profile) {
      SCOPED_TRACE("profile " + std::to_string(profile));
      ExpectKept(read.Profile(profile), model.Profile(profile), ofHeaders);
      for (int point = 0; point <= kMaxLayer; ++point) {
        Losses losses = ofPoints;
        if (point == 1)
          losses.dropped.insert(losses.dropped.end(), {"first", "count"});  // the header's stand there
        ExpectKept(read.ProfilePts(point, profile), model.ProfilePts(point, profile), losses);
      }
    }
  }

  void ExpectMeshKept(int part, const Losses& ofPoints, const Losses& ofFaces) const {
    SCOPED_TRACE("Part " + std::to_string(part));
    for (int i = 1; i <= model.Part(part).maxpoints; ++i) {
      EXPECT_EQ(read.PointMark(part, i), model.PointMark(part, i));
      ExpectKept(read.Points(part, i), model.Points(part, i), ofPoints);
    }
    for (int i = 1; i <= model.Part(part).maxfaces; ++i) {
      ExpectKept(read.Faces(part, i), model.Faces(part, i), ofFaces);
    }
  }

  ModelStore model, read;
};

TEST_F(Formats, Project) {
  const std::string text = TextOf([&](TextWriter& out) { WriteProject(model, out); });
  EXPECT_TRUE(Matches(Digest(text, {{1, 41}, {-27, -1}}), "project.txt"));
  ReadProject(read, text);
  for (int part = 0; part < kUserParts; ++part) {
    ExpectKept(read.Part(part), model.Part(part), {{}, {"PartName", "vtcount", "vtfacecount", "count"}});
    ExpectMeshKept(part, {{"X", "Y", "Z"}, {"onoff"}},
                   {{"c1X", "c1Y", "c1Z", "c2X", "c2Y", "c2Z", "c3X", "c3Y", "c3Z"}, {"vt1", "vt2", "vt3"}});
  }
  ExpectProfilesKept(kNothing, kPosition);
  for (int group = 0; group < kMaxGroup; ++group) {
    ExpectKept(read.MaterialGroups(group), model.MaterialGroups(group), {{}, {"TfG", "TfB"}});
  }
  EXPECT_EQ(read.MaterialGroups(kMaxGroup).Ns, MaterialRec().Ns);
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteProject(read, out); }), text);
}

// Line 193 is the first of block 1, whose points carry the counts.
TEST_F(Formats, ProfileFile) {
  const std::string text = TextOf([&](TextWriter& out) { WriteProfiles(model, out); });
  EXPECT_TRUE(Matches(Digest(text, {{1, 17}, {193, 209}, {-5, -1}}), "profiles.txt"));
  ItemReader items(text);
  ReadProfiles(read, items, ProfileItems::All);
  EXPECT_TRUE(items.AtEnd());
  ExpectProfilesKept(kNothing, kPosition);
}

// Of a block the seventh line, of a point the first three items of the fourth belong to the second effector.
TEST_F(Formats, ProfileFileWithoutSecond) {
  std::istringstream lines(TextOf([&](TextWriter& out) { WriteProfiles(model, out); }));
  std::string text, line;
  for (int number = 0; std::getline(lines, line); ++number) {
    const int inBlock = number % (7 + 37 * 5);
    if (inBlock == 6) continue;
    text += inBlock > 6 && (inBlock - 7) % 5 == 3 ? line.substr(line.rfind(' ')) : line;
  }
  ReadProfileFile(read, text);
  ExpectProfilesKept({{}, {"addProfile2X", "addProfile2Y", "addProfile2Z"}},
                     {{"X", "Y", "Z"}, {"addXAmt2", "addYAmt2", "addZAmt2"}});
}

TEST_F(Formats, ObjectInfo) {
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteObjectInfoOfAllParts(model, out); }),
                      "object_info_all.txt"));
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteObjectInfoOfPart(model, 1, out); }),
                      "object_info_part.txt"));
}

TEST_F(Formats, Obj) {
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteObj(model, {}, out); }), "plain.obj"));
  const ObjExportSettings all = {"/a b/x.obj_materialfile.mtl", true, true, true, true};
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteObj(model, all, out); }), "everything.obj"));
}

TEST_F(Formats, OlderObj) {
  ObjExportSettings all = {"materialfile.mtl", true, true, true, true};
  all.dialect = ObjDialect::Older;
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteObj(model, all, out); }), "older.obj"));
}

// The numbered counts of the mapping are larger than the tables of this small model are filled.
TEST_F(Formats, TextureFileAndUvs) {
  for (int part = 0; part < kUserParts; ++part) {
    model.Part(part).vtcount = model.Part(part).maxpoints;
    model.Part(part).vtfacecount = model.Part(part).maxfaces;
  }
  const std::string text = TextOf([&](TextWriter& out) { WriteTextureFile(model, out); });
  EXPECT_TRUE(Matches(text, "mapping.tex"));
  ReadTextureFile(read, text);
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteTextureFile(read, out); }), text);
  const std::string uvs = TextOf([&](TextWriter& out) { WriteUvs(model, 1, out); });
  EXPECT_TRUE(
      Matches(uvs + TextOf([&](TextWriter& out) { WriteTopViewAsUvs(model, 1, out); }), "mapping.uvs"));
}

TEST_F(Formats, MaterialFile) {
  const std::string text = TextOf([&](TextWriter& out) { WriteMaterialFile(model, ".bmp", out); });
  EXPECT_TRUE(Matches(Digest(text, {{1, 56}, {-13, -1}}), "materials.mtl"));
}

TEST_F(Formats, MaterialSettings) {
  const std::string text = TextOf([&](TextWriter& out) { WriteMaterialSettings(model, out); });
  EXPECT_TRUE(Matches(Digest(text, {{1, 24}, {-24, -1}}), "material_settings.txt"));
  ReadMaterialSettings(read, text);
  for (int group = 0; group < kMaxGroup; ++group) {
    ExpectKept(read.MaterialGroups(group), model.MaterialGroups(group), {{}, {"TfG", "TfB", "GroupName"}});
  }
  EXPECT_EQ(read.MaterialGroups(kMaxGroup).Ns, MaterialRec().Ns);
}

TEST_F(Formats, TextPart) {
  const std::string text = TextOf([&](TextWriter& out) { WriteTextPart(model, 1, out); });
  EXPECT_TRUE(Matches(text, "text_part.txt"));
  ReadTextPart(read, 1, text);
  ExpectKept(read.Part(1), model.Part(1), {{}, {"vtcount", "vtfacecount", "Sections", "count"}});
  for (int i = 1; i <= 4; ++i) model.Points(1, i).onoff = model.PointMark(1, i);  // one number for both
  ExpectMeshKept(1, {{"X", "Y", "Z"}, {"u", "v"}},
                 {{}, {"c1X", "c1Y", "c1Z", "c2X", "c2Y", "c2Z", "c3X", "c3Y", "c3Z", "vt1", "vt2", "vt3"}});
}

TEST_F(Formats, PlainPositions) {
  ReadProfilePositions(read, TextOf([&](TextWriter& out) { WriteProfilePositions(model, out); }));
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    for (int point = 0; point <= kMaxLayer; ++point) {
      const ProfilePointRec &p = read.ProfilePts(point, profile), &q = model.ProfilePts(point, profile);
      EXPECT_EQ((Vec3{p.X, p.Y, p.Z}), (Vec3{q.X, q.Y, q.Z})) << point << " of " << profile;
    }
  }
  EXPECT_TRUE(Matches(TextOf([&](TextWriter& out) { WriteSeparateFaces(model, 0, out); }), "faces.txt"));
}

}  // namespace
}  // namespace pelorium
