// The exports, against texts worked out by hand, and an independent small OBJ reader.
#include <gtest/gtest.h>

#include <sstream>

#include "base/fault.h"
#include "core/part_operations.h"
#include "interchange/material_file.h"
#include "interchange/obj_export.h"
#include "interchange/object_info.h"
#include "interchange/text_part.h"
#include "interchange/xyz_files.h"

namespace pelorium {
namespace {

template <typename Write>
std::string TextOf(Write write) {
  StringSink sink;
  TextWriter out(sink);
  write(out);
  out.Flush();
  return sink.text();
}

class Exports : public ::testing::Test {
 protected:
  // Part 0: a 3-4-5 triangle that is on, the same one off, and one in a strange state. Part 1: one face.
  Exports() {
    Place(0, 1, 0, 0, 0);
    Place(0, 2, 3, 0, 0);
    Place(0, 3, 0, 4, 1.0625);
    Place(1, 1, 1234.5, -0.0004, 7);
    Route(0, 1, 1, 2, 3, 1);
    Route(0, 2, 3, 2, 1, 0);
    Route(0, 3, 1, 1, 1, 5);
    Route(1, 1, 1, 1, 1, 1);
    model.Part(0).maxpoints = 3, model.Part(0).maxfaces = 3, model.Part(0).PartName = "first part";
    model.Part(1).maxpoints = 1, model.Part(1).maxfaces = 1;
    for (int part = 0; part < kUserParts; ++part) SyncFaceCorners(model, part);
  }

  void Place(int part, int number, double x, double y, double z) {
    PointRec& p = model.Points(part, number);
    p.X = x, p.Y = y, p.Z = z;
  }
  void Route(int part, int face, int a, int b, int c, std::int16_t onoff) {
    FaceRec& f = model.Faces(part, face);
    f.corner1pt = a, f.corner2pt = b, f.corner3pt = c, f.onoff = onoff, f.group = 2;
  }

  std::string Obj(const ObjExportSettings& settings) {
    return TextOf([&](TextWriter& out) { WriteObj(model, settings, out); });
  }

  ModelStore model;
};

// 1.0625 rounds half to even at 3 decimals; Y and Z change places; the second Part's numbers follow the
// first's.
TEST_F(Exports, PlainObj) {
  EXPECT_EQ(Obj({}),
            "v 0 0 0\r\nv 3 0 0\r\nv 0 1.062 4\r\nv 1234.5 7 0\r\n"
            "f 1 2 3\r\n#f 3 2 1\r\nf 4 4 4\r\n");
}

TEST_F(Exports, ObjWithEverything) {
  ObjExportSettings settings;
  settings.materialLibrary = "/a b/x.obj_materialfile.mtl";
  settings.groupPerPart = settings.groupPerFace = settings.textureCoordinates = settings.scaledDown = true;
  model.MaterialGroups(2).GroupName = "clay";
  model.Points(0, 1).u = 0.1;
  model.Faces(0, 1).vt2 = 5;
  EXPECT_EQ(Obj(settings),
            "mtllib /a b/x.obj_materialfile.mtl\r\n"
            "v 0 0 0\r\nv 0.003 0 0\r\nv 0 0.0011 0.004\r\nv 1.2345 0.007 0\r\n"
            "vt 0.1 1\r\nvt 1 1\r\n"
            "g first part\r\nusemtl material_2\r\n"
            "g clay\r\nusemtl material_2\r\nf 1/0 2/5 3/0\r\n"
            "g clay\r\nusemtl material_2\r\n#f 3/0 2/0 1/0\r\n"
            "g clay\r\nusemtl material_2\r\n"
            "g clay\r\nusemtl material_2\r\nf 4/3 4/3 4/3\r\n");
}

TEST_F(Exports, AnEmptyModelGivesAnEmptyObj) {
  model.Part(0) = model.Part(1) = PartHeader{};
  EXPECT_EQ(Obj({}), "");
}

// A reader that knows only the format: every face must name vertices that are there.
TEST_F(Exports, AnotherReaderFindsTheSameCounts) {
  std::istringstream in(Obj({}));
  int vertices = 0, faces = 0;
  for (std::string word; in >> word;) {
    double x, y, z;
    if (word == "v") {
      ASSERT_TRUE(in >> x >> y >> z);
      ++vertices;
    } else if (word == "f") {
      ASSERT_TRUE(in >> x >> y >> z);
      for (const double corner : {x, y, z}) EXPECT_TRUE(corner >= 1 && corner <= vertices);
      ++faces;
    } else {
      std::getline(in, word);
    }
  }
  EXPECT_EQ(vertices, 4);
  EXPECT_EQ(faces, 2);
}

TEST_F(Exports, MaterialRecord) {
  MaterialRec& m = model.MaterialGroups(0);
  m.KaR = 0.5, m.usebump = m.usespec = 1, m.usedif = 2;
  const std::string text = TextOf([&](TextWriter& out) { WriteMaterialFile(model, ".bmp", out); });
  EXPECT_EQ(text.substr(0, text.find("newmtl material_1")),
            "newmtl material_0\r\n    Ns0.25\r\n    d 1\r\n    illum 2\r\n    #bump_amt 0.11\r\n"
            "    #refl_amt 0.05\r\n    #amb_amt 0.12\r\n    #dif_amt 0.75\r\n    #spec_amt 0.12\r\n"
            "    Ka  0.5  0  0\r\n    Kd  0  0  0\r\n    Ks  0  0  0\r\n    Tf  1  1  1\r\n"
            "    map_Bump mtl0_bumpmap.bmp\r\n    map_Ks mtl0_specular.bmp\r\n");
  EXPECT_NE(text.find("newmtl material_40\r\n"), std::string::npos);
  EXPECT_EQ(text.find("newmtl material_41"), std::string::npos);
}

TEST_F(Exports, ObjectInfoMeasuresFaces) {
  model.Part(0).maxfaces = 1;
  model.Points(0, 3).Z = 0;
  SyncFaceCorners(model, 0);
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteObjectInfoOfPart(model, 0, out); }),
            " Exported by Pelorium   \r\n  \r\n  \r\n"
            "---------------------------- Part # 0-------------------------------\r\n"
            "Part# 0 Triangle Face # 1 of 1 faces is turned on \r\n"
            "Corner#1  Dist from triangle corner 1 to 2  3 assigned to point#-->1\r\n"
            "3d Location: X = 0 Y = 0 Z = 0\r\n  \r\n"
            "Corner#2  Dist from triangle corner 2 to 3  5 assigned to point#-->2\r\n"
            "3d Location: X = 3 Y = 0 Z = 0\r\n  \r\n"
            "Corner#3  Dist from triangle corner 3 to 1  4 assigned to point#-->3\r\n"
            "3d Location: X = 0 Y = 4 Z = 0\r\n"
            " Area = 6\r\nParimiter = 12\r\n"
            "Total Faces for Part# 0 is 1\r\nTotal Sqr Units in Part# 0 = 6\r\n"
            "Total Part# Face Parimiters Length = 12\r\n");
  EXPECT_EQ(EstimatedArea(model, 0), 6);
}

// Lengths 1.01, 0.5 and 0.5 once rounded: no triangle, and no area.
TEST_F(Exports, ASliverHasNoArea) {
  FaceRec& f = model.Faces(1, 1);
  f.c2X = f.c1X + 1.006, f.c2Y = f.c1Y, f.c2Z = f.c1Z;
  f.c3X = f.c1X + 0.503, f.c3Y = f.c1Y, f.c3Z = f.c1Z;
  EXPECT_EQ(EstimatedArea(model, 1), 0);
}

TEST_F(Exports, TextPartRoundTrip) {
  model.Part(0).maxfaces = 2;
  model.PointMark(0, 2) = 0;
  const std::string text = TextOf([&](TextWriter& out) { WriteTextPart(model, 0, out); });
  EXPECT_EQ(text,
            "Part Name\r\nfirst part\r\nmaxpoints  minpoints  maxfaces  minfaces  \r\n3 1 2 1\r\n"
            "point# X  Y  Z  point on/off  \r\n1 0 0 0 0\r\n2 3 0 0 0\r\n3 0 4 1.06 0\r\n"
            "Face# corner1pt# corner2pt# corner3pt# group# on/off\r\n1 1 2 3 2 1\r\n2 3 2 1 2 0\r\n");
  ReadTextPart(model, 1, text);
  EXPECT_EQ(model.Part(1).PartName, "first part");
  EXPECT_EQ(model.Part(1).maxfaces, 2);
  EXPECT_EQ(model.Points(1, 3).Z, 1.06);
  EXPECT_EQ(model.Faces(1, 2).corner1pt, 3);
  EXPECT_EQ(model.Points(1, 2).onoff, 0);
}

TEST_F(Exports, TextPartWithOtherCountsIsAFault) {
  EXPECT_THROW(ReadTextPart(model, 1, "Part Name\r\nx\r\n\r\n2 1 0 1\r\n\r\n1 0 0 0 1\r\nFace#"), Fault);
  EXPECT_THROW(ReadTextPart(model, 1, ""), Fault);
  EXPECT_LE(model.Part(1).maxpoints, kMaxPoints);
}

TEST_F(Exports, SeparateFacesGetPointsOfTheirOwn) {
  const std::string text = TextOf([&](TextWriter& out) { WriteSeparateFaces(model, 0, out); });
  EXPECT_EQ(text.substr(0, 17), " 0 \r\n 0 \r\n 0 \r\n 3");
  ReadSeparateFaces(model, 1, text + "1 2 3 4");  // four numbers are left over
  EXPECT_EQ(model.Part(1).maxfaces, 1);
  EXPECT_EQ(model.Part(1).maxpoints, 3);
  EXPECT_EQ(model.Points(1, 3).Y, 4);
  EXPECT_EQ(model.Faces(1, 1).corner3pt, 3);
}

TEST_F(Exports, ProfilePositionsMayEndEarly) {
  model.ProfilePts(0, 1).Y = 2.5;
  const std::string text = TextOf([&](TextWriter& out) { WriteProfilePositions(model, out); });
  ModelStore other;
  ReadProfilePositions(other, text.substr(0, text.find("2.5") + 3));
  EXPECT_EQ(other.ProfilePts(0, 1).Y, 2.5);
  EXPECT_THROW(ReadProfilePositions(other, "1 2 x"), Fault);
}

}  // namespace
}  // namespace pelorium
