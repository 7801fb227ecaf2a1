// A small picture to drag on: moves, turns or scales profile points by the mouse.
#pragma once

#include <functional>

#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "profiles/edit_profile_range.h"
#include "windows/shell/picture_drag.h"

namespace pelorium {

class App;

inline constexpr int kDragWidth = 200, kDragHeight = 150;  // pixels; the picture's Y counts downward

// What a drag edits, and what follows it.
struct ProfileDragTarget {
  std::function<ProfileBlock()> block;
  std::function<double()> speed;  // units for each unit dragged, of a move
  std::function<void()> onEdited;
};

// Move: the left button moves X and Y with the mouse, the right one Z up and down. Turn: one degree a mouse
// event in the plane X-Z, by the sign of the way across. Scale: a hundredth a mouse event, X and Z with the
// left button, Z alone with the right one. Turns and scales are about the origin.
class ProfileDrag {
 public:
  ProfileDrag(App& app, PictureBox& picture, const OptionButton& turns, const OptionButton& scales,
              ProfileDragTarget target);

 private:
  void Drag(const MouseEvent& event);
  void Apply(const ProfileBlock& block, double dx, double dy);

  App& app_;
  const OptionButton &turns_, &scales_;
  ProfileDragTarget target_;
  PictureDrag drag_;
};

}  // namespace pelorium
