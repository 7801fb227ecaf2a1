// The recorder of OpenGL calls, and the surface that they are drawn on.
#include <gtest/gtest.h>

#include "graphics/gl_recorder.h"
#include "graphics/gl_surface.h"

namespace pelorium {
namespace {

std::vector<std::string> Texts(const GlRecorder& recorder) {
  std::vector<std::string> texts;
  for (const GlCall& call : recorder.calls()) texts.push_back(CallText(call));
  return texts;
}

TEST(GlRecorder, ReplaysEveryCallAndClosesAnOpenShape) {
  GlRecorder first, second;
  first.Vertex3f(9, 9, 9);
  first.Restart();
  first.ClearColourAndDepth();
  first.LoadIdentity();
  first.Viewport(1, 2, 4096, 637);
  first.DepthRange(0.25, 1);
  first.Scalef(1, 2, 3);
  first.Translatef(-4, 5, 6);
  first.Rotatef(245, 1, 0, 0.5);
  first.PointSize(3);
  first.Begin(GlShape::Points);
  first.End();
  first.Begin(GlShape::Triangles);
  first.Color3f(0.3F, 0.2F, 0.1F);
  first.Vertex3f(7, 8, 9.5);
  first.Replay(second);
  EXPECT_EQ(Texts(second),
            (std::vector<std::string>{"ClearColourAndDepth", "LoadIdentity", "Viewport 1 2 4096 637",
                                      "DepthRange 0.25 1", "Scalef 1 2 3", "Translatef -4 5 6",
                                      "Rotatef 245 1 0 0.5", "PointSize 3", "Begin Points", "End",
                                      "Begin Triangles", "Color3f 0.3 0.2 0.1", "Vertex3f 7 8 9.5", "End"}));
}

void Triangle(Gl& gl, float left, float bottom, float z, float red) {
  gl.Begin(GlShape::Triangles);
  gl.Color3f(red, 0.4F, 0.2F);
  gl.Vertex3f(left, bottom, z);
  gl.Vertex3f(left + 1, bottom, z);
  gl.Vertex3f(left, bottom + 1, z);
  gl.End();
}

// A picture that starts with one colour everywhere, which no drawing leaves standing.
struct Shot {
  Shot(GlSurface& surface, int w, int h) : width(w), pixels(static_cast<std::size_t>(w) * h, 0x123456) {
    surface.ReadBack(pixels.data(), w, h);
  }
  std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }

  int width;
  std::vector<std::uint32_t> pixels;
};

TEST(EglSurface, DrawsUprightWithTheSmallerDepthInFront) {
  const auto surface = OpenEglSurface();
  if (!surface) GTEST_SKIP() << "this machine has no OpenGL";
  Gl* gl = surface->Begin(40, 20);
  ASSERT_NE(gl, nullptr);
  gl->ClearColourAndDepth();
  gl->LoadIdentity();
  gl->Viewport(0, 0, 20, 20);
  gl->DepthRange(0, 1);
  Triangle(*gl, -1, 0, -0.5, 1);  // the upper left quarter
  Triangle(*gl, -1, 0, 0.5, 0);   // drawn later, and behind it
  const Shot shot(*surface, 40, 20);
  constexpr std::uint32_t kFront = 0x3366FF;  // 0.2, 0.4, 1 of 255
  EXPECT_EQ(shot.At(2, 7), kFront);
  EXPECT_EQ(shot.At(2, 12), 0U);   // below it
  EXPECT_EQ(shot.At(12, 7), 0U);   // to the right of it
  EXPECT_EQ(shot.At(39, 19), 0U);  // outside the viewport, in the ground's colour too
  EXPECT_EQ(surface->Begin(1 << 20, 20), nullptr);
  EXPECT_NE(surface->Begin(40, 20), nullptr);  // the refusal did no harm
}

TEST(EglSurface, GrowsAndOutlivesAnother) {
  auto other = OpenEglSurface();
  const auto surface = OpenEglSurface();
  if (!surface) GTEST_SKIP() << "this machine has no OpenGL";
  other = nullptr;
  for (const int side : {10, 1500, 30}) {
    Gl* gl = surface->Begin(side, side);
    ASSERT_NE(gl, nullptr);
    gl->ClearColourAndDepth();
    gl->LoadIdentity();
    gl->Viewport(0, 0, side, side);
    Triangle(*gl, 0, 0, 0, 1);
    const Shot shot(*surface, side, side);
    EXPECT_EQ(shot.At(side * 6 / 10, side * 4 / 10), 0x3366FFU) << side;
    EXPECT_EQ(shot.At(side * 4 / 10, side * 4 / 10), 0U) << side;
  }
}

}  // namespace
}  // namespace pelorium
