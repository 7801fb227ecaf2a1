// What rooms ask of rooms above them or beside them. Each link is filled in by the room that can answer, when
// it is built; the functions that ask stand in hooks.h and readers.h.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "core/model_store.h"
#include "views/view_settings.h"

namespace pelorium {

class Picture;
class PictureBox;

enum class Cap { Bottom, Top, Start, End };

// How points are picked in the view.
struct PickShapeSettings {
  bool isCircle = true;
  double radius = 50;  // of the circle, units
};

struct RoomLinks {
  // frame
  std::function<void()> start;  // the load of the main frame
  // Presses an item of the menu bar, as a person would; one that is not ready does nothing.
  std::function<void(std::string_view name)> pressMenuItem;

  // view
  std::function<void()> refreshViews, markStale, drawNow, syncFaceCorners;

  // profiles
  std::function<Projection()> subView;  // of the profile view
  std::function<double()> elevation;    // of points that are drawn into a profile

  // geometry
  std::function<PickShapeSettings()> pickShape;
  std::function<void(int sections)> showSections;  // "Sections" of Revolve Profile, held in its bar

  // A click while the view draws a mesh together: its next point, at X, Y of the model.
  std::function<void(double x, double y)> addMeshPoint;
  // imaging
  std::function<PictureBox&()> foreground;  // of the image maker
  // Both its images become the picture, with its size; which one shows stays.
  std::function<void(const Picture& picture)> takeImages;

  // facetools
  std::function<void(int face)> chooseFace;
  std::function<int()> chosenPoint, chosenFace;  // of the current Part, as the views mark them
  // Closes a body that was just laid; one without rows gets no cap.
  std::function<void(Cap cap, const LaidGrid& body)> pressCap;
  // What an end cap takes: its faces, and the points of a layer.
  std::function<void(int faces, int pointsPerLayer)> freeFaceRange;
  // Chooses the layer of an end cap, and makes the cap when it has a start point.
  std::function<void(int layer, std::optional<int> start)> endCap;
};

}  // namespace pelorium
