// The small pictures of "Edit Geometry": drags that edit the chosen points or the origin, and clicks that
// pick.
#pragma once

#include <functional>

#include "controls/picture_box.h"
#include "views/view_settings.h"
#include "windows/shell/picture_drag.h"

namespace pelorium {

class App;

enum class GeometryMode { Move, Rotate, Scale, PickPoints, MoveOrigin };

// Move: the left button X and Y, the right one Z. Rotate: the left button the plane X-Z, the right one X-Y by
// the way across and, at a tenth, Y-Z by the way up and down. Scale: a hundredth a mouse event, X by the way
// across, Y and Z by the way down. Move Origin: the left button X and Y, the right one Z; a double click sets
// it to 0. Pick Points: a press switches the points of the area on, with the right button off.
class GeometryDrag {
 public:
  // `mode` is asked at each event.
  GeometryDrag(App& app, PictureBox& picture, std::function<GeometryMode()> mode);

  // Gives the picture the units of its mode: one a pixel, Y downward, for edits of points; the units a pixel
  // of the view for the origin, so that it keeps step with the mouse; the whole view for picks, in the view's
  // proportions, so that a place of the area means that place of the view.
  void FollowView();

  // An area that picks shows the wire of the view in miniature; what other areas showed goes.
  void ShowView(ViewSettings settings);

 private:
  void Press(const MouseEvent& event);
  void Move(const MouseEvent& event);
  void Pick();
  void ShowPath(bool isShown);
  void Edit(double dx, double dy);
  void MovePoints(double dx, double dy);
  void RotatePoints(double dx, double dy);
  void ScalePoints(double dx, double dy);
  void MoveOrigin(double dx, double dy);
  double Speed() const;
  bool IsRight() const;

  App& app_;
  PictureBox& picture_;
  std::function<GeometryMode()> mode_;
  int ownWidth_, ownHeight_;  // pixels, as the picture was made
  PictureDrag held_;
};

}  // namespace pelorium
