// OpenGL through EGL.
#include "graphics/gl_surface.h"

namespace pelorium {

std::unique_ptr<GlSurface> OpenEglSurface() { return nullptr; }

}  // namespace pelorium
