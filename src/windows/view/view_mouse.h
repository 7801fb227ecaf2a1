// The mouse on the picture of the model: what a press and a drag do in each mode.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "controls/picture_box.h"
#include "views/pick_points.h"
#include "windows/shell/picture_drag.h"
#include "windows/view/view_drag.h"

namespace pelorium {

class App;

// Which way and where the view picture shows the model at a place of it: Top, Front and Side views, and the
// nearest picture of the tri view. Empty where points cannot be picked.
std::optional<PickView> PickViewAt(const App& app, double x, double y);

// A touch of the brush: a place in the plane of two model axes, and the way there from the last one. The
// third coordinate is the origin's.
struct BrushTouch {
  DragAxes axes;
  double x = 0, y = 0;
  DragStep step;
};

class ViewMouse {
 public:
  explicit ViewMouse(App& app) : app_(app) {}

  // A fault in one of them lets go of the drag and goes on to the door of the event.
  void Down(const MouseEvent& event);
  void Move(const MouseEvent& event);
  void Up() { drag_.LetGo(); }

  // Shows the shapes that lie over the picture as they are now; the line to the mouse goes.
  void Refreshed();

  // Shows lines over the picture until a later event refreshes the views.
  void ShowPreview(std::vector<OverlayShape> lines);
  // Called by each refresh.
  void DropOldPreview();

  // Pushes the points under the mouse, once there is something that does.
  std::function<void(const BrushTouch&)> onBrush;

 private:
  template <typename Act>
  void Guarded(Act act);

  void PressPick(const MouseEvent& event);
  PickArea AreaAt(const MouseEvent& event) const;
  void Pick(const MouseEvent& event);
  void ShowPicked(const MouseEvent& event);
  void PressProfile(const MouseEvent& event);
  void DrawPoint(const MouseEvent& event);
  void ChooseLayer(const MouseEvent& event);
  void ShowGreyLevel(const MouseEvent& event);

  void DragShaded(const MouseEvent& event);
  DragStep StepTo(const MouseEvent& event) const;
  void MoveLayer(const MouseEvent& event);
  void ShowPlace(const MouseEvent& event);
  void ShowNextLine(const MouseEvent& event);
  void Brush(const MouseEvent& event);
  void MovePick(const MouseEvent& event);

  void PlaceShape(const PickArea& area);
  void ShowOverlay();

  App& app_;
  PictureDrag drag_{PictureDrag::Places::Whole};
  DragAxes axes_;                                 // of the picture that was pressed on
  std::optional<PickView> pickView_, brushView_;  // as they were at the press
  float cornerX_ = 0, cornerY_ = 0;               // of the rectangle that is drawn
  std::optional<int> layer_;                      // that is moved
  std::optional<OverlayShape> nextLine_;
  std::vector<OverlayShape> preview_;
  std::uint64_t previewEvent_ = 0;  // that showed it
};

}  // namespace pelorium
