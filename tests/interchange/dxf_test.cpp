// DXF files: what is written to the byte, what comes back, and files of other programs.
#include <functional>

#include "core/part_operations.h"
#include "interchange/dxf_export.h"
#include "interchange/dxf_import.h"
#include "support/harness.h"
#include "support/model_text.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

constexpr int kPart = 1;

class Dxf : public ::testing::Test {
 protected:
  using Reader = void (*)(ModelStore&, int, ByteSource&, double);

  // The fault that ends it, or what the Part then is.
  std::string Outcome(std::string_view text, Reader read, double factor = 1) {
    StringSource file(text);
    try {
      read(model, kPart, file, factor);
    } catch (const Fault& fault) {
      return fault.what();
    }
    const PartHeader& part = model.Part(kPart);
    return PointsText(model, kPart, 1, part.maxpoints) + " / " + FacesText(model, kPart, 1, part.maxfaces);
  }

  ModelStore model;
};

// Face 2 is off, face 3 of another group; the third point lies at 10, the number that readers look for.
TEST_F(Dxf, EveryExportToTheByte) {
  NumberModel(model);
  PutPoints(model, kPart, 1, {{1.5, 0, -3}, {1e-7, 10, 1e15}, {10, 10, 10}, {0.1, 0.25, -1.0 / 3}});
  const std::array<std::array<int, 3>, 3> corners = {{{1, 2, 3}, {2, 3, 4}, {4, 3, 2}}};
  model.Part(kPart).minfaces = 1;
  for (int f = 1; f <= 3; ++f) {
    FaceRec& face = model.Faces(kPart, f);
    face.onoff = f != 2, face.group = f == 3 ? 7 : 5;
    const auto& [a, b, c] = corners[static_cast<std::size_t>(f - 1)];
    face.corner1pt = a, face.corner2pt = b, face.corner3pt = c;
  }
  SyncFaceCorners(model, kPart);
  for (int profile = 0; profile <= kMaxProfile; ++profile)
    model.Profile(profile).count = profile == 9 ? 2 : 0;
  const std::pair<const char*, std::function<void(TextWriter&)>> exports[] = {
      {"tri", [&](TextWriter& out) { WriteDxfTriangles(model, kPart, 10, std::nullopt, out); }},
      {"group", [&](TextWriter& out) { WriteDxfTriangles(model, kPart, 255, 7, out); }},
      {"subdivided", [&](TextWriter& out) { WriteDxfSubdivided(model, kPart, 3, out); }},
      {"solid", [&](TextWriter& out) { WriteDxfSolids(model, kPart, 4, 12, out); }},
      {"points", [&](TextWriter& out) { WriteDxfPoints(model, kPart, 5, out); }},
      {"mesh", [&](TextWriter& out) { WriteDxfMesh(model, kPart, out); }},
      {"profiles", [&](TextWriter& out) { WriteDxfProfiles(model, 6, out); }},
      {"grid",
       [&](TextWriter& out) {
         WriteDxfProfileGrid(model, {3, 4, 35, 36}, 7, out);
       }},
      {"empty", [&](TextWriter& out) { WriteDxfTriangles(model, 0, 1, 41, out); }},
  };
  std::vector<std::string> texts;
  for (const auto& [name, write] : exports) {
    texts.push_back(TextOf(write));
    EXPECT_TRUE(MatchesGolden(texts.back(), std::string("interchange/golden/") + name + ".dxf"));
  }
  const std::string first = "1.5 0 -3", second = "0 10 1E+15", third = "10 10 10",
                    fourth = "0.1 0.25 -0.3333";
  EXPECT_EQ(Outcome(texts[0], ReadDxfTriangles), first + " | " + second + " | " + third + " | " + fourth +
                                                     " | " + third + " | " + second + " / 1 2 3 | 4 5 6");
  EXPECT_EQ(Outcome(texts[5], ReadDxfMesh),
            first + " | " + second + " | " + third + " | " + fourth + " / 1 2 3 | 2 3 4 | 4 3 2");
  EXPECT_EQ(Outcome(texts[8], ReadDxfQuads), " / ");
}

TEST_F(Dxf, TrianglesAndQuads) {
  const std::string begin = "999\r\na remark\r\n0\nSECTION\n2\nENTITIES\n";
  const auto corner = [](int k, const std::string& x) {
    const std::string n = std::to_string(k);
    return "1" + n + "\n" + x + "\n 2" + n + "\n\t0 \n3" + n + "\n1E1x\n";
  };
  const std::string face = corner(0, "1") + corner(1, "2") + corner(2, "3") + corner(3, "4");
  const std::string read = "1 0 10 | 2 0 10 | 3 0 10";
  const std::pair<std::string, std::string> tri[] = {
      {"", "end of file: the entities do not end, line 0"},
      {begin, "end of file: the entities do not end, line 6"},
      {begin + "0\nENDSEC", " / "},
      {begin + "0\n3DFACE\n8\n0\n70\n10\n62\n10\n" + face + "0\nEOF\n", read + " / 1 2 3"},
      // The "10" as the 17th line loads, as the 19th not.
      {begin + "0\n3DFACE\n5\n1\n6\n1\n8\n1\n62\n1\n39\n1\n70\n1\n100\n1\n" + face + "0\nENDSEC",
       read + " / 1 2 3"},
      {begin + "0\n3DFACE\n5\n1\n6\n1\n8\n1\n62\n1\n39\n1\n70\n1\n100\n1\n100\n2\n" + face + "0\nENDSEC",
       "bad number: no group 10 in 17 lines, line 23"},
      {begin + "0\n3DFACE\n" + corner(0, "x") + corner(1, "-.5e0") + corner(2, ""),
       "end of file: the entities do not end, line 26"},
      {begin + "0\n3DFACE\n" + corner(0, "1e999") + corner(1, "1") + corner(2, "1"),
       "overflow: 1e999, line 10"},
  };
  for (const auto& [text, outcome] : tri) EXPECT_EQ(Outcome(text, ReadDxfTriangles), outcome) << text;
  EXPECT_EQ(PointsText(model, kPart, 1, 3), "0 0 10 | -0.5 0 10 | 0 0 10");  // read before the faults
  EXPECT_EQ(Outcome(begin + "0\n3DFACE\n" + face + "0\nENDSEC", ReadDxfQuads, -2),
            "-2 0 -20 | -4 0 -20 | -6 0 -20 | -2 0 -20 | -6 0 -20 | -8 0 -20 / 1 2 3 | 4 5 6");
  EXPECT_EQ(model.Faces(kPart, 2).c3X, -8);
}

TEST_F(Dxf, AFullTableEndsTheTriangles) {
  model.Part(0).maxfaces = kMaxFaces;
  const std::string text =
      TextOf([&](TextWriter& out) { WriteDxfTriangles(model, 0, 1, std::nullopt, out); });
  model.Faces(kPart, 7666).onoff = 0;
  EXPECT_EQ(Outcome(text, ReadDxfTriangles), "subscript out of range: point 23001");
  EXPECT_EQ(model.Faces(kPart, 7666).corner3pt, 22998);
  EXPECT_EQ(model.Faces(kPart, 7666).onoff, 1);
  EXPECT_EQ(model.Part(kPart).maxfaces, 0);
}

// A header and vertices with the fields of other programs between ours.
TEST_F(Dxf, Meshes) {
  const auto mesh = [](const std::string& points, const std::string& faces, const std::string& vertices) {
    return "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n8\n0\n66\n1\n10\n0\n70\n64\n71\n" + points + "\n72\n" +
           faces + "\n0\n" + vertices + "SEQEND\n";
  };
  const auto point = [](const std::string& x) {
    return "VERTEX\n5\nA1\n10\n" + x + "\n20\n2\n30\n3\n70\n192\n100\nmore\n0\n";
  };
  const std::string face = "VERTEX\n70\n128\n71\n-1\n72\n0\n73\n2\n0\n";
  const std::pair<std::string, std::string> table[] = {
      {mesh("0", "0", ""), " / "},
      {mesh("2", "1", point("1") + point("10") + face), "1 2 3 | 10 2 3 / -1 0 2"},
      {mesh("2", "1", point("1") + point("1")), "end of file: the mesh ends too early, line 48"},
      {mesh("1", "0", "VERTEX\n10\n1\n20\n2\n0\n"), "end of file: no group 30, line 25"},
      {mesh("23001", "0", ""), "subscript out of range: a count of 23001, line 16"},
      {mesh("-1", "0", ""), "subscript out of range: a count of -1, line 16"},
      {mesh("3", "7701", ""), "subscript out of range: a count of 7701, line 18"},
      {mesh("40000", "0", ""), "overflow: 40000, line 16"},
      {mesh("0", "1", "VERTEX\n71\n1\n72\n1\n73\n23001\n0\n"),
       "subscript out of range: corner 23001, line 26"},
      {"ENTITIES\n0\nLINE\n8\n0\n0\nENDSEC\n", "end of file: no group 71, line 6"},
  };
  for (const auto& [text, outcome] : table) EXPECT_EQ(Outcome(text, ReadDxfMesh), outcome) << text;
  EXPECT_EQ(model.Part(kPart).maxpoints, 2);  // a fault leaves the counts
}

}  // namespace
}  // namespace pelorium
