// The shaded picture of the model, in the view window and in the small preview of the View Options.
#pragma once

#include <memory>

#include "controls/picture_box.h"
#include "graphics/gl_surface.h"
#include "windows/shell/picture_drag.h"

namespace pelorium {

class App;
class ShadedFrame;

class ShadedView {
 public:
  explicit ShadedView(App& app);
  ~ShadedView();

  // Makes a new context; the last one made is the one drawn with.
  void InitShadedContext() { ++renderContext_; }

  // The handle of the last context: they are numbered from 1.
  int RenderContext() const { return renderContext_; }

  // The view window shows the shaded picture: its caption at once, its pixels when the event ends.
  void DrawShaded();
  // Draws the model into the view window's picture and into the preview, as it is now: later changes show
  // with the next drawing. A machine that has no OpenGL is told of once, and its pictures stay blank.
  void Paint();

  // Into the preview of the View Options alone.
  void DrawPreview();

  // What a step of a drag (units of the picture, y upward) does to the pose: left turns about X and Z, right
  // about Y; with Shift left moves in X and Y, right in Z.
  void DragPose(const MouseEvent& event, const PictureDrag::Step& step);

 private:
  GlSurface* Surface();
  // False after a fault. The square stands at the lower left, or in the middle.
  bool Draw(std::shared_ptr<ShadedFrame>& frame, PictureBox& box, int viewportSide, bool isInMiddle = false);

  App& app_;
  int renderContext_ = 0;
  bool isOpened_ = false;  // or tried to
  // All pictures are drawn on one surface, one after the other.
  std::unique_ptr<GlSurface> surface_;
  std::shared_ptr<ShadedFrame> viewFrame_, previewFrame_;
};

}  // namespace pelorium
