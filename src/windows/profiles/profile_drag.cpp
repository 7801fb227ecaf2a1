// Dragging profile points.
#include "windows/profiles/profile_drag.h"

#include <utility>

#include "profiles/keep_finite.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/drag_factor.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr double kDegreesPerEvent = 1;

}  // namespace

ProfileDrag::ProfileDrag(App& app, PictureBox& picture, const OptionButton& turns, const OptionButton& scales,
                         ProfileDragTarget target)
    : app_(app), turns_(turns), scales_(scales), target_(std::move(target)) {
  picture.onMouseDown = [this](const MouseEvent& event) { drag_.Press(event); };
  picture.onMouseMove = [this](const MouseEvent& event) {
    if (drag_.isActive()) Drag(event);
  };
  picture.onMouseUp = [this](const MouseEvent&) { drag_.LetGo(); };
}

void ProfileDrag::Drag(const MouseEvent& event) {
  const PictureDrag::Step step = drag_.TakeStep(event);
  EditKeepingFinite(app_.model, [&] { Apply(target_.block(), step.across, step.up); });
  target_.onEdited();
}

void ProfileDrag::Apply(const ProfileBlock& block, double dx, double dy) {
  using enum Axis;
  ModelStore& model = app_.model;
  const bool isRight = drag_.IsRight();
  if (turns_.value() || scales_.value()) {
    if (dx == 0) return;
    if (turns_.value()) {
      TurnBlock(model, block, X, Z, dx < 0 ? -kDegreesPerEvent : kDegreesPerEvent, Origin(app_));
    } else {
      ScaleBlock(model, block, isRight ? BlockAxes{Z} : BlockAxes{X, Z}, DragFactor(dx), Origin(app_));
    }
    return;
  }
  const double speed = target_.speed();
  if (!isRight) MoveBlock(model, block, {X}, dx * speed);
  MoveBlock(model, block, {isRight ? Z : Y}, -dy * speed);
}

}  // namespace pelorium
