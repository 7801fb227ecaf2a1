// A place off the screen that OpenGL draws on, and from which the pixels are read back.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "graphics/gl.h"

namespace pelorium {

class GlSurface {
 public:
  virtual ~GlSurface() = default;

  // Makes the surface current and at least that large (pixels), with depth testing and clockwise front faces
  // on, and returns its calls; null when it cannot be had in that size.
  virtual Gl* Begin(int width, int height) = 0;

  // The lower left width x height pixels, as 0x00BBGGRR row by row from the top.
  virtual void ReadBack(std::uint32_t* pixels, int width, int height) = 0;
};

// Null when no usable context can be had.
using GlOpener = std::function<std::unique_ptr<GlSurface>()>;

// Through EGL, with no display needed.
std::unique_ptr<GlSurface> OpenEglSurface();

}  // namespace pelorium
