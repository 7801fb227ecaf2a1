// Texture coordinates from files: what each reader makes of its lines, and where it ends.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "interchange/dxf_import.h"
#include "interchange/obj_uvs.h"
#include "interchange/texture_file.h"
#include "interchange/tuv_file.h"
#include "interchange/uvs_file.h"
#include "support/harness.h"
#include "support/model_text.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

// "2 UV points: 0.5 1 | 2 3; 1 faces: 1 2 3"
std::string MappingText(const ModelStore& model, int points, int faces) {
  std::ostringstream out;
  out << model.Part(0).vtcount << ":";
  for (int i = 1; i <= points; ++i) out << " " << model.Points(0, i).u << "," << model.Points(0, i).v;
  out << " | " << model.Part(0).vtfacecount << ":";
  for (int i = 1; i <= faces; ++i) {
    const FaceRec& face = model.Faces(0, i);
    out << " " << face.vt1 << "," << face.vt2 << "," << face.vt3;
  }
  return out.str();
}

std::string Repeated(const std::string& line, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += line;
  return text;
}

enum class Kind { Uvs, Obj, Obj3 };

UvLines Split(const std::string& text, Kind kind) {
  StringSource source(text);
  return kind == Kind::Uvs ? SplitUvs(source) : SplitObjUvs(source);
}

void ReadMapping(ModelStore& model, const std::string& text, Kind kind) {
  const UvLines lines = Split(text, kind);
  if (kind == Kind::Uvs) return ReadUvs(model, 0, lines);
  ReadObjUvs(model, 0, lines, kind == Kind::Obj ? VtNumbers::Two : VtNumbers::Three);
}

void ReadModel(ModelStore& model, const std::string& text, Kind kind, double scale) {
  const UvLines lines = Split(text, kind);
  if (kind == Kind::Uvs) return ReadUvsAsModel(model, 0, lines, scale);
  ReadObjUvsAsModel(model, 0, lines, kind == Kind::Obj ? VtNumbers::Two : VtNumbers::Three, scale);
}

struct Case {
  const char* what;
  Kind kind;
  std::string text;
  const char* mapping;  // of two points and two faces
};

TEST(UvFiles, WhatTheReadersMakeOfLines) {
  const std::vector<Case> cases = {
      {"plain, other lines passed over", Kind::Uvs, "# map\nvt 0.5 1\nvt 2 3\nv 9 9 9\nf 1 2 2\nvn 0\n",
       "2: 0.5,1 2,3 | 1: 1,2,2 0,0,0"},
      {"CR alone, blanks before the word", Kind::Uvs, "vt 4 5\r vt 6 7\rf 2 1 2",
       "1: 4,5 1,1 | 1: 2,1,2 0,0,0"},
      // the 32 characters end in the second number
      {"a long line loses its tail", Kind::Uvs, "vt 0.1234567890123456789012 3.123456\n",
       "1: 0.123457,3.1234 1,1 | 0: 0,0,0 0,0,0"},
      {"no vt lines", Kind::Uvs, "f 23001 32767 -4\n", "0: 1,1 1,1 | 1: 23000,23000,-4 0,0,0"},
      {"corners of two, three and one number", Kind::Obj, "vt 1 2\nvtx\nf 1/2 3/4/5 6/7\nf 1 2 3\n", ""},
      {"second of the numbers, none, empty", Kind::Obj,
       "vt 1 2\nvt 3 4\nf 11/22/33 1//5 7/8\nf 5/0x 6/-2 9/2.5\n", "2: 1,2 3,4 | 2: 22,0,8 0,-2,2"},
      {"no slash near: 0, and the next corner follows", Kind::Obj, "vt 1 2\nf 123456789012 3/4 5/6\n",
       "1: 1,2 1,1 | 1: 0,4,6 0,0,0"},
      {"a third number a line", Kind::Obj3, "vt 1 2 0\nvt 3 4 0\nf 1/1 2/2 3/1\n",
       "2: 1,2 3,4 | 1: 1,2,1 0,0,0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ModelStore model;
    if (*c.mapping == '\0') {
      EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { ReadMapping(model, c.text, c.kind); }));
      EXPECT_EQ(MappingText(model, 1, 1), "2: 1,2 | 2: 0,0,0");  // the counts are stored before
      continue;
    }
    ReadMapping(model, c.text, c.kind);
    EXPECT_EQ(MappingText(model, 2, 2), c.mapping);
  }
}

TEST(UvFiles, OnlyTheMapperChoosesPoints) {
  for (const Kind kind : {Kind::Uvs, Kind::Obj}) {
    ModelStore model;
    model.PointMark(0, 1) = model.Points(0, 1).onoff = 0;
    ReadMapping(model, "vt 1 2\n", kind);
    EXPECT_EQ(model.PointMark(0, 1), kind == Kind::Uvs ? 1 : 0);
    EXPECT_EQ(model.Points(0, 1).onoff, 0);
  }
}

TEST(UvFiles, Limits) {
  for (const Kind kind : {Kind::Uvs, Kind::Obj}) {
    ModelStore model;
    ReadMapping(
        model, Repeated("vt 1 2\n", 23001) + Repeated("f 1/1 1/1 1/1\n", kind == Kind::Uvs ? 0 : 7700), kind);
    EXPECT_EQ(model.Part(0).vtcount, 23000);
    EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { ReadMapping(model, Repeated("f 1 1 1\n", 7701), kind); }));
    EXPECT_EQ(model.Part(0).vtfacecount, 7700);
    EXPECT_EQ(model.Part(0).vtcount, 0);
    model.Part(0).vtcount = 5;
    EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { ReadMapping(model, Repeated("f 1 1 1\n", 32768), kind); }));
    EXPECT_EQ(model.Part(0).vtcount, 5);
  }
  ModelStore model;
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { ReadMapping(model, "f 1 2 32768\n", Kind::Uvs); }));
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { ReadMapping(model, "f 1/1 1/40000 1/1\n", Kind::Obj); }));
  EXPECT_EQ(MappingText(model, 0, 1), "0: | 1: 1,2,0");
}

TEST(UvFiles, TheMapAsAModel) {
  ModelStore model;
  ReadModel(model, "vt 1 2\nvt 3 4\nvt 5 6\nf 1 2 3\nf 3 40000 0\n", Kind::Uvs, 2);
  EXPECT_EQ(PointsText(model, 0, 1, 3), "2 4 10 | 6 8 10 | 10 12 10");
  EXPECT_EQ(FacesText(model, 0, 1, 2), "1 2 3 | 3 23000 0");
  EXPECT_EQ(model.Part(0).maxpoints, 3);
  EXPECT_EQ(model.Part(0).maxfaces, 2);
  EXPECT_EQ(model.Part(0).vtcount, 1);  // as it was
  EXPECT_EQ(model.Faces(0, 1).c3Y, 12);
  ReadModel(model, "vt 1 2 9\nf 7/1 7/1 7/1\n", Kind::Obj3, 3);
  EXPECT_EQ(PointsText(model, 0, 1, 2), "3 6 30 | 6 8 10");
  EXPECT_EQ(model.Part(0).maxpoints, 1);
  EXPECT_TRUE(Raises(FaultKind::Subscript,
                     [&] { ReadModel(model, "vt 8 8\nvt 8 8\nf 1/-1 1/1 1/1\n", Kind::Obj, 1); }));
  EXPECT_EQ(model.Part(0).maxpoints, 1);  // the header as it was
  EXPECT_EQ(model.Points(0, 2).X, 8);
}

TEST(UvFiles, TopViewComesBackAsTheMapping) {
  ModelStore model;
  PutPoints(model, 0, 1, {{1.2345, 1.235, 7}, {-2, 0, 1}, {0, 4, 2}});
  model.Part(0).maxpoints = 3, model.Part(0).maxfaces = 1;
  model.Faces(0, 1).corner2pt = 2, model.Faces(0, 1).corner3pt = 3;
  ReadMapping(model, TextOf([&](TextWriter& out) { WriteTopViewAsUvs(model, 0, out); }), Kind::Uvs);
  EXPECT_EQ(MappingText(model, 3, 1), "3: 1.234,1.24 -2,0 0,4 | 1: 1,2,3");
}

TEST(UvFiles, TextureFileEndsWhereItIsWrong) {
  ModelStore model;
  ReadTextureFile(model, " 1 , 1 \n1 2 3\n0 0\n0.25,0.5");
  EXPECT_EQ(MappingText(model, 1, 1), "1: 0.25,0.5 | 1: 1,2,3");
  EXPECT_TRUE(
      Raises(FaultKind::Subscript, [&] { ReadTextureFile(model, "3 7701 " + Repeated("1 1 1\n", 7701)); }));
  EXPECT_EQ(MappingText(model, 0, 1), "3: | 7700: 1,1,1");
  EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { ReadTextureFile(model, "40000 1"); }));
  EXPECT_TRUE(Raises(FaultKind::EndOfFile, [&] { ReadTextureFile(model, "1 0 1 0 0.5"); }));
  EXPECT_EQ(model.Points(0, 1).u, 0.5);
}

TEST(UvFiles, FlatPatternByWayOfDxf) {
  const auto dxfOf = [](const std::string& tuv, double scale) {
    return TextOf([&](TextWriter& out) { WriteTuvAsDxf(tuv, scale, out); });
  };
  const std::string dxf = dxfOf("TUV, \"map\",1 1\n0, 0,0.1, 10,0, 0,1\n1 1 1 2 2 3 3\n\n", 10);
  EXPECT_TRUE(dxf.starts_with(
      " 0 \r\nSECTION\r\n 2 \r\nENTITIES\r\n 0 \r\n3DFACE\r\n 8 \r\nflatpattern\r\n 62 \r\n 2 \r\n"
      " 10 \r\n 0 \r\n 20 \r\n 1 \r\n 30 \r\n 1 \r\n 11 \r\n 100 \r\n"));
  EXPECT_TRUE(dxf.ends_with(" 33 \r\n 1 \r\n 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n"));
  ModelStore model;
  StringSource source(dxf);
  ReadDxfTriangles(model, 0, source, 1);
  EXPECT_EQ(model.Part(0).maxfaces, 2);
  EXPECT_EQ(PointsText(model, 0, 1, 4), "0 1 1 | 100 0 1 | 0 10 1 | 10 10 1");
  EXPECT_TRUE(Raises(FaultKind::EndOfFile, [&] { dxfOf("1 1 1 1 0 1 2 3 4 5", 1); }));
  EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { dxfOf("1 1 1 1 0 1 2 x 4 5 6", 1); }));
  model.Faces(0, 1).c1X = 0.5;
  EXPECT_EQ(TextOf([&](TextWriter& out) { WriteTuvTriangle(model, 0, out); }),
            " 3 \r\n0.5 1 1\r\n100 0 1\r\n0 10 1\r\n");
}

}  // namespace
}  // namespace pelorium
