// Recording and replaying of OpenGL calls.
#include "graphics/gl_recorder.h"

#include <string_view>

#include "base/numbers.h"

namespace pelorium {

namespace {

struct OpForm {
  std::string_view name;
  int values;
};

constexpr std::array<OpForm, 12> kForms = {{{"ClearColourAndDepth", 0},
                                            {"Viewport", 4},
                                            {"DepthRange", 2},
                                            {"LoadIdentity", 0},
                                            {"Scalef", 3},
                                            {"Translatef", 3},
                                            {"Rotatef", 4},
                                            {"PointSize", 1},
                                            {"Begin", 1},
                                            {"End", 0},
                                            {"Color3f", 3},
                                            {"Vertex3f", 3}}};
constexpr std::array<std::string_view, 3> kShapeNames = {"Points", "Lines", "Triangles"};

void Make(const GlCall& call, Gl& target) {
  const auto& [a, b, c, d] = call.values;
  switch (call.op) {
    case GlOp::ClearColourAndDepth:
      return target.ClearColourAndDepth();
    case GlOp::Viewport:
      return target.Viewport(static_cast<int>(a), static_cast<int>(b), static_cast<int>(c),
                             static_cast<int>(d));
    case GlOp::DepthRange:
      return target.DepthRange(a, b);
    case GlOp::LoadIdentity:
      return target.LoadIdentity();
    case GlOp::Scalef:
      return target.Scalef(a, b, c);
    case GlOp::Translatef:
      return target.Translatef(a, b, c);
    case GlOp::Rotatef:
      return target.Rotatef(a, b, c, d);
    case GlOp::PointSize:
      return target.PointSize(a);
    case GlOp::Begin:
      return target.Begin(static_cast<GlShape>(a));
    case GlOp::End:
      return target.End();
    case GlOp::Color3f:
      return target.Color3f(a, b, c);
    case GlOp::Vertex3f:
      return target.Vertex3f(a, b, c);
  }
}

}  // namespace

std::string CallText(const GlCall& call) {
  const OpForm& form = kForms[static_cast<std::size_t>(call.op)];
  std::string text(form.name);
  if (call.op == GlOp::Begin) {
    return text.append(" ").append(kShapeNames[static_cast<std::size_t>(call.values[0])]);
  }
  for (int i = 0; i < form.values; ++i) {
    text.append(" ").append(ShortestForm(call.values[static_cast<std::size_t>(i)]));
  }
  return text;
}

// Whole pixels are exact in single precision up to 2^24, far beyond any viewport.
void GlRecorder::Viewport(int x, int y, int width, int height) {
  Keep(GlOp::Viewport, static_cast<float>(x), static_cast<float>(y), static_cast<float>(width),
       static_cast<float>(height));
}

void GlRecorder::DepthRange(double near, double far) {
  Keep(GlOp::DepthRange, static_cast<float>(near), static_cast<float>(far));
}

void GlRecorder::Replay(Gl& target) const {
  bool isOpen = false;
  for (const GlCall& call : calls_) {
    Make(call, target);
    if (call.op == GlOp::Begin) isOpen = true;
    if (call.op == GlOp::End) isOpen = false;
  }
  if (isOpen) target.End();
}

}  // namespace pelorium
