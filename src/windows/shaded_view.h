// The shaded picture of the model, in the view window and in the small preview of the View Options.
#pragma once

#include "controls/picture_box.h"

namespace pelorium {

class App;

class ShadedView {
 public:
  explicit ShadedView(App& app) : app_(app) {}

  // Makes a new context; the last one made is the one drawn with.
  void InitShadedContext();

  // Draws the model into the view window's picture.
  void DrawShaded();

  // What a drag by dx, dy (units of the picture, y upward) does to the pose: left turns about X and Z, right
  // about Y; with Shift left moves in X and Y, right in Z.
  void DragPose(const MouseEvent& event, double dx, double dy);

 private:
  App& app_;
};

}  // namespace pelorium
