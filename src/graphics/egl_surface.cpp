// OpenGL through EGL: draws into an off-screen buffer, by the graphics card or in software.
#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <array>

#include "graphics/gl_surface.h"

namespace pelorium {

namespace {

constexpr std::uint32_t kColourMask = 0x00FFFFFF;
constexpr int kFirstWidth = 1024, kFirstHeight = 1024;  // pixels; spares most pictures the growing

EGLDisplay InitialisedOrNone(EGLDisplay display) {
  if (display == EGL_NO_DISPLAY || !eglInitialize(display, nullptr, nullptr)) return EGL_NO_DISPLAY;
  return display;
}

// The one without a screen where it is known, which works on any machine; else the default.
EGLDisplay OpenDisplay() {
  const auto getPlatformDisplay =
      reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
  if (getPlatformDisplay != nullptr) {
    const EGLDisplay display = InitialisedOrNone(getPlatformDisplay(
        EGL_PLATFORM_SURFACELESS_MESA, reinterpret_cast<void*>(EGL_DEFAULT_DISPLAY), nullptr));
    if (display != EGL_NO_DISPLAY) return display;
  }
  return InitialisedOrNone(eglGetDisplay(EGL_DEFAULT_DISPLAY));
}

// Stays open until the program ends: EGL has one for the whole process and does not count who uses it, so
// that closing it would take it from under other surfaces, and from libraries that draw through EGL too.
EGLDisplay SharedDisplay() {
  static const EGLDisplay display = OpenDisplay();
  return display;
}

GLenum ShapeOf(GlShape shape) {
  switch (shape) {
    case GlShape::Points:
      return GL_POINTS;
    case GlShape::Lines:
      return GL_LINES;
    case GlShape::Triangles:
      return GL_TRIANGLES;
  }
  return GL_POINTS;
}

// The calls themselves, on whatever context is current.
class CurrentGl : public Gl {
 public:
  void ClearColourAndDepth() override { glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT); }
  void Viewport(int x, int y, int width, int height) override { glViewport(x, y, width, height); }
  void DepthRange(double near, double far) override { glDepthRange(near, far); }
  void LoadIdentity() override { glLoadIdentity(); }
  void Scalef(float x, float y, float z) override { glScalef(x, y, z); }
  void Translatef(float x, float y, float z) override { glTranslatef(x, y, z); }
  void Rotatef(float degrees, float x, float y, float z) override { glRotatef(degrees, x, y, z); }
  void PointSize(float pixels) override { glPointSize(pixels); }
  void Begin(GlShape shape) override { glBegin(ShapeOf(shape)); }
  void End() override { glEnd(); }
  void Color3f(float red, float green, float blue) override { glColor3f(red, green, blue); }
  void Vertex3f(float x, float y, float z) override { glVertex3f(x, y, z); }
};

class EglSurface : public GlSurface {
 public:
  ~EglSurface() override;

  // False when no context can be had; the surface is of no use then.
  bool Open();

  Gl* Begin(int width, int height) override;
  void ReadBack(std::uint32_t* pixels, int width, int height) override;

 private:
  bool SetupPixelFormat();
  bool Grow(int width, int height);
  bool MakeCurrent() { return eglMakeCurrent(display_, buffer_, buffer_, context_) == EGL_TRUE; }

  const EGLDisplay display_ = SharedDisplay();
  EGLConfig config_ = nullptr;
  EGLContext context_ = EGL_NO_CONTEXT;
  EGLSurface buffer_ = EGL_NO_SURFACE;
  int width_ = 0, height_ = 0;        // pixels of the buffer
  int maxWidth_ = 0, maxHeight_ = 0;  // pixels that the context can draw on
  CurrentGl gl_;
};

EglSurface::~EglSurface() {
  if (context_ == EGL_NO_CONTEXT) return;
  eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  if (buffer_ != EGL_NO_SURFACE) eglDestroySurface(display_, buffer_);
  eglDestroyContext(display_, context_);
}

bool EglSurface::Open() {
  if (display_ == EGL_NO_DISPLAY || !eglBindAPI(EGL_OPENGL_API) || !SetupPixelFormat()) return false;
  context_ = eglCreateContext(display_, config_, EGL_NO_CONTEXT, nullptr);
  if (context_ == EGL_NO_CONTEXT) return false;
  maxWidth_ = kFirstWidth, maxHeight_ = kFirstHeight;
  if (!Grow(kFirstWidth, kFirstHeight) || !MakeCurrent()) return false;
  std::array<GLint, 2> limits{};
  glGetIntegerv(GL_MAX_VIEWPORT_DIMS, limits.data());
  maxWidth_ = limits[0], maxHeight_ = limits[1];
  return true;
}

bool EglSurface::SetupPixelFormat() {
  static constexpr std::array<EGLint, 13> kWanted = {EGL_SURFACE_TYPE,
                                                     EGL_PBUFFER_BIT,
                                                     EGL_RENDERABLE_TYPE,
                                                     EGL_OPENGL_BIT,
                                                     EGL_RED_SIZE,
                                                     8,
                                                     EGL_GREEN_SIZE,
                                                     8,
                                                     EGL_BLUE_SIZE,
                                                     8,
                                                     EGL_DEPTH_SIZE,
                                                     16,
                                                     EGL_NONE};
  EGLint found = 0;
  return eglChooseConfig(display_, kWanted.data(), &config_, 1, &found) && found == 1;
}

// On failure the buffer stays as it was.
bool EglSurface::Grow(int width, int height) {
  if (width <= width_ && height <= height_) return true;
  width = std::max(width, width_);
  height = std::max(height, height_);
  if (width > maxWidth_ || height > maxHeight_) return false;
  const std::array<EGLint, 5> size = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
  const EGLSurface larger = eglCreatePbufferSurface(display_, config_, size.data());
  if (larger == EGL_NO_SURFACE) return false;
  if (buffer_ != EGL_NO_SURFACE) {
    eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglDestroySurface(display_, buffer_);
  }
  buffer_ = larger;
  width_ = width, height_ = height;
  return true;
}

Gl* EglSurface::Begin(int width, int height) {
  eglBindAPI(EGL_OPENGL_API);  // of the thread, which others may have changed
  if (!Grow(width, height) || !MakeCurrent()) return nullptr;
  glEnable(GL_DEPTH_TEST);
  glFrontFace(GL_CW);
  glClearColor(0, 0, 0, 0);
  return &gl_;
}

// GL's rows run from the bottom.
void EglSurface::ReadBack(std::uint32_t* pixels, int width, int height) {
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8_REV, pixels);
  const auto row = [&](int y) { return pixels + std::ptrdiff_t{y} * width; };
  for (int y = 0; y < height / 2; ++y) std::swap_ranges(row(y), row(y + 1), row(height - 1 - y));
  std::for_each(pixels, row(height), [](std::uint32_t& pixel) { pixel &= kColourMask; });
}

}  // namespace

std::unique_ptr<GlSurface> OpenEglSurface() {
  auto surface = std::make_unique<EglSurface>();
  if (!surface->Open()) return nullptr;
  return surface;
}

}  // namespace pelorium
