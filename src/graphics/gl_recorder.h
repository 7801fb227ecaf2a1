// Keeps a list of OpenGL calls, to be made later: a picture's content is fixed when it is drawn, its pixels
// are worked out only if they are looked at.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "graphics/gl.h"

namespace pelorium {

enum class GlOp : std::uint8_t {
  ClearColourAndDepth,
  Viewport,
  DepthRange,
  LoadIdentity,
  Scalef,
  Translatef,
  Rotatef,
  PointSize,
  Begin,
  End,
  Color3f,
  Vertex3f,
};

struct GlCall {
  GlOp op;
  std::array<float, 4> values;  // as many as the call takes, in its order; a shape by its number
};

// "Color3f 0.3 0.3 0.3", "Begin Lines".
std::string CallText(const GlCall& call);

class GlRecorder : public Gl {
 public:
  // Forgets the calls and keeps their memory, so that one picture after the other is recorded into it.
  void Restart() { calls_.clear(); }

  const std::vector<GlCall>& calls() const { return calls_; }

  // Makes the calls again. A shape that a fault left open is closed.
  void Replay(Gl& target) const;

  void ClearColourAndDepth() override { Keep(GlOp::ClearColourAndDepth); }
  void Viewport(int x, int y, int width, int height) override;
  void DepthRange(double near, double far) override;
  void LoadIdentity() override { Keep(GlOp::LoadIdentity); }
  void Scalef(float x, float y, float z) override { Keep(GlOp::Scalef, x, y, z); }
  void Translatef(float x, float y, float z) override { Keep(GlOp::Translatef, x, y, z); }
  void Rotatef(float degrees, float x, float y, float z) override { Keep(GlOp::Rotatef, degrees, x, y, z); }
  void PointSize(float pixels) override { Keep(GlOp::PointSize, pixels); }
  void Begin(GlShape shape) override { Keep(GlOp::Begin, static_cast<float>(shape)); }
  void End() override { Keep(GlOp::End); }
  void Color3f(float red, float green, float blue) override { Keep(GlOp::Color3f, red, green, blue); }
  void Vertex3f(float x, float y, float z) override { Keep(GlOp::Vertex3f, x, y, z); }

 private:
  void Keep(GlOp op, float a = 0, float b = 0, float c = 0, float d = 0) {
    calls_.push_back({op, {a, b, c, d}});
  }

  std::vector<GlCall> calls_;
};

}  // namespace pelorium
