// OpenGL 1.1 in immediate mode, as far as the shaded view uses it: a seam between what is drawn and what
// draws it.
#pragma once

namespace pelorium {

enum class GlShape { Points, Lines, Triangles };

// The calls mean what OpenGL's of the same name mean; lengths in model units, angles in degrees, colours
// 0..1.
class Gl {
 public:
  virtual ~Gl() = default;

  virtual void ClearColourAndDepth() = 0;
  virtual void Viewport(int x, int y, int width, int height) = 0;  // pixels, from the lower left corner
  virtual void DepthRange(double near, double far) = 0;            // 0..1; the smaller depth is in front
  virtual void LoadIdentity() = 0;
  virtual void Scalef(float x, float y, float z) = 0;
  virtual void Translatef(float x, float y, float z) = 0;
  virtual void Rotatef(float degrees, float x, float y, float z) = 0;
  virtual void PointSize(float pixels) = 0;
  virtual void Begin(GlShape shape) = 0;
  virtual void End() = 0;
  virtual void Color3f(float red, float green, float blue) = 0;
  virtual void Vertex3f(float x, float y, float z) = 0;
};

}  // namespace pelorium
