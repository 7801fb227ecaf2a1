// Patterns of an open book and of a cube, tabs, pages, and the drawing of a page.
#include "interchange/flat_pattern.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include "interchange/svg_pattern.h"
#include "support/harness.h"

namespace pelorium {
namespace {

using Corners = std::array<Vec3, 3>;

class FlatPatterns : public testing::Test {
 protected:
  // A triangle on points of its own, at Z 10, and where its corners lay before: of a flat triangle, the
  // corners 1 and 2 are exchanged.
  void AddFace(const Corners& flat, const Corners& folded) {
    PartHeader& part = model.Part(0);
    const int first = part.maxpoints + 1;
    constexpr std::array<int, 3> kExchanged = {1, 0, 2};
    for (int i = 0; i < 3; ++i) {
      const Vec3 &to = flat[static_cast<std::size_t>(i)],
                 &from = folded[static_cast<std::size_t>(kExchanged[static_cast<std::size_t>(i)])];
      PointRec &point = model.Points(0, first + i), &before = model.Points(kTempPart, first + i);
      point.X = to.X, point.Y = to.Y, point.Z = 10;
      before.X = from.X, before.Y = from.Y, before.Z = from.Z;
    }
    model.Faces(0, ++part.maxfaces) = {.corner1pt = first, .corner2pt = first + 1, .corner3pt = first + 2};
    part.maxpoints = model.Part(kTempPart).maxpoints = static_cast<std::int16_t>(first + 2);
    settings.lastFace = part.maxfaces;
  }
  // Two pages of a book along the Y axis; the right one's edge lies that much higher.
  void PutBook(double rise, double gap = 0) {
    AddFace({{{0, 10}, {-10, 0}, {0, 0}}}, {{{0, 10, 0}, {-10, 0, 0}, {0, 0, 0}}});
    AddFace({{{gap, 0}, {10 + gap, 0}, {gap, 10}}}, {{{0, 0, 0}, {8, 0, rise}, {0, 10, 0}}});
  }
  // The net of a cube, printed on its outside; with `inside` the cube is mirrored, and so the inside is
  // printed.
  void PutCube(bool inside) {
    struct Side {
      double x, y;  // on the paper, in sides
      Vec3 o, u, v;
    };
    const Vec3 x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, left{-1, 0, 0}, near{0, -1, 0};
    for (const Side& s :
         {Side{0, 0, {}, x, z}, Side{1, 0, {1, 0, 0}, y, z}, Side{2, 0, {1, 1, 0}, left, z},
          Side{-1, 0, {0, 1, 0}, near, z}, Side{0, 1, {0, 0, 1}, x, y}, Side{0, -1, {0, 1, 0}, x, near}}) {
      const auto flat = [&](int u, int v) { return Vec3{10 * (s.x + u), 10 * (s.y + v), 0}; };
      const auto folded = [&](int u, int v) {
        return Vec3{10 * (s.o.X + u * s.u.X + v * s.v.X), 10 * (s.o.Y + u * s.u.Y + v * s.v.Y),
                    (inside ? -10 : 10) * (s.o.Z + u * s.u.Z + v * s.v.Z)};
      };
      AddFace({flat(0, 0), flat(1, 0), flat(0, 1)}, {folded(0, 0), folded(1, 0), folded(0, 1)});
      AddFace({flat(1, 0), flat(1, 1), flat(0, 1)}, {folded(1, 0), folded(1, 1), folded(0, 1)});
    }
  }

  // "4 cut 1 mountain": how many lines of each kind.
  std::string Lines() {
    std::map<PatternLineKind, int> count;
    for (const PatternLine& line : Pattern().lines) ++count[line.kind];
    std::string text;
    for (const auto& [kind, name] : {std::pair{PatternLineKind::Cut, "cut "},
                                     {PatternLineKind::Fold, "fold "},
                                     {PatternLineKind::Mountain, "mountain "},
                                     {PatternLineKind::Valley, "valley "}}) {
      if (count[kind] > 0) text += std::to_string(count[kind]) + " " + name;
    }
    return text;
  }
  FlatPattern Pattern() const { return MakeFlatPattern(model, settings); }
  std::string Texts() {
    std::string text;
    for (const PatternText& each : Pattern().texts) text += each.text + " ";
    return text;
  }

  ModelStore model;
  PatternSettings settings;
};

TEST_F(FlatPatterns, TheSpineOfABookIsMountainOrValleyOrNeither) {
  PutBook(-6);
  EXPECT_EQ(Lines(), "4 cut 1 mountain ");
  model.Points(kTempPart, 4).Z = 6;  // the right page's outer corner
  EXPECT_EQ(Lines(), "4 cut 1 valley ");
  model.Points(kTempPart, 4).Z = 0;
  EXPECT_EQ(Lines(), "4 cut 1 fold ");
  model.Part(kTempPart).maxpoints = 5;  // what was saved is of another Part
  model.Points(kTempPart, 4).Z = 6;
  EXPECT_EQ(Lines(), "4 cut 1 fold ");
  EXPECT_EQ(Texts(), "");
}

// What was unfolded may miss its neighbour by a little more, and gets numbers where it lies apart.
TEST_F(FlatPatterns, EdgesApart) {
  PutBook(-6, 0.03);
  EXPECT_EQ(Lines(), "4 cut 1 mountain ");
  model.Part(kTempPart).maxpoints = 0;
  EXPECT_EQ(Lines(), "6 cut ");
  model.Points(0, 4).X = model.Points(0, 6).X = 0.009;
  EXPECT_EQ(Lines(), "4 cut 1 fold ");
  model.Part(kTempPart).maxpoints = 6;
  for (const int point : {4, 5, 6}) model.Points(0, point).X += 3;
  EXPECT_EQ(Lines(), "6 cut ");
  EXPECT_EQ(Texts(), "1 1 ");
  settings.tabWidth = 2;  // one of the two glued edges has one, and the four others
  EXPECT_EQ(Lines(), "16 cut 5 fold ");
  settings.tabWidth = 4;  // the glued edges' tab would cover the other page
  EXPECT_EQ(Lines(), "14 cut 4 fold ");
  settings.faceNumbers = true;
  EXPECT_EQ(Texts(), "1 1 1 2 ");
}

TEST_F(FlatPatterns, ACubeFoldsOneWay) {
  PutCube(false);
  EXPECT_EQ(Lines(), "14 cut 6 fold 5 mountain ");
  EXPECT_EQ(Pattern().texts.size(), 14U);
  settings.tabWidth = 2;
  EXPECT_EQ(Lines(), "28 cut 13 fold 5 mountain ");  // seven tabs of three sides
  settings.tabWidth = 100;                           // no tab is longer than its edge: they come to a point
  EXPECT_EQ(Lines(), "21 cut 13 fold 5 mountain ");
  model.Part(0).maxfaces = model.Part(0).maxpoints = 0;
  PutCube(true);
  settings.tabWidth.reset();
  EXPECT_EQ(Lines(), "14 cut 6 fold 5 valley ");
}

TEST_F(FlatPatterns, WhatIsNoPartOfIt) {
  PutBook(-6);
  model.Faces(0, 1).onoff = 0;
  EXPECT_EQ(Lines(), "3 cut ");
  model.Points(0, 5).Z = 10.02;
  EXPECT_EQ(Lines(), "");
  model.Points(0, 5).Z = 10.005;
  settings.lastFace = kMaxFaces;
  EXPECT_EQ(Lines(), "3 cut ");
  model.Points(0, 5).Y = 0, model.Points(0, 6).Y = 0;  // no area
  EXPECT_EQ(Lines(), "");
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { LayOutPages(Pattern(), PatternPaper::A4); }));
  settings.mmPerUnit = 0;
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { Pattern(); }));
}

TEST_F(FlatPatterns, Pages) {
  PutBook(-6);
  const auto pages = [this](double scale, PatternPaper paper) {
    settings.mmPerUnit = scale;
    const PatternPages p = LayOutPages(Pattern(), paper);
    return std::to_string(p.columns) + " x " + std::to_string(p.rows) + " of " +
           std::to_string(static_cast<int>(p.paperWidth));
  };
  EXPECT_EQ(pages(9.5, PatternPaper::A4), "1 x 1 of 210");  // 190 x 95 mm
  EXPECT_EQ(pages(9.6, PatternPaper::A4), "1 x 1 of 297");
  EXPECT_EQ(pages(20, PatternPaper::A4), "3 x 1 of 210");  // 400 x 200 mm: lying down it takes four
  EXPECT_EQ(pages(20, PatternPaper::A3), "1 x 1 of 420");
  EXPECT_EQ(pages(9.6, PatternPaper::Letter), "1 x 1 of 215");
  EXPECT_EQ(pages(300, PatternPaper::Fit), "1 x 1 of 6020");
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { pages(99999, PatternPaper::A4); }));
}

TEST_F(FlatPatterns, APageToTheByte) {
  PutBook(-6, 3);
  settings.mmPerUnit = 12.5;
  settings.tabWidth = 5;
  settings.faceNumbers = true;
  const FlatPattern pattern = Pattern();
  const PatternPages pages = LayOutPages(pattern, PatternPaper::A4);
  StringSink sink;
  for (int page = 0; page < pages.count(); ++page) {
    TextWriter out(sink);
    WriteSvgPage(pattern, pages, page, out);
    out.Flush();
  }
  EXPECT_TRUE(MatchesGolden(sink.text(), "interchange/golden/pattern.svg"));
}

}  // namespace
}  // namespace pelorium
