// The line about what is worked on.
#include "windows/frame/status_line.h"

#include <algorithm>

#include "core/chosen_points.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

std::string HintOfView(const App& app) {
  if (IsShadedChosen(app)) return "Shaded: left drag rotates, right drag spins, Shift moves";
  switch (ChosenView(app)) {
    case ViewMode::Profile:
      return "Profile: each click draws a point, right button sets the present one";
    case ViewMode::Tesselate:
      return "Draw Tesselated: each click adds a point of the mesh";
    default:
      return "wheel zooms, middle button moves the view";
  }
}

// The project on file, and a dot when the model is another one by now.
std::string FileOfModel(const History& history) {
  std::string text = history.fileName().empty() ? "" : "   " + history.fileName();
  return history.IsModelChanged() ? text + " \u25CF" : text;
}

}  // namespace

std::string StatusLine(const App& app) {
  const int part = CurrentPart(app);
  const PartHeader& header = ReadModel(app).Part(part);
  int chosen = 0;
  for (int i = std::max(1, PointRangeStart(app)); i <= std::min(PointRangeEnd(app), kMaxPoints); ++i) {
    if (ReadModel(app).PointMark(part, i) == 1) ++chosen;
  }
  return "Part " + std::to_string(part) + "   Profile " + std::to_string(CurrentProfile(app)) + "   " +
         std::to_string(header.maxpoints) + " points, " + std::to_string(chosen) + " chosen   " +
         std::to_string(header.maxfaces) + " faces" + FileOfModel(*app.history);
}

std::string MouseHint(const App& app) {
  switch (ArmedTool(app)) {
    case Tool::Move:
      return "Move: left button X and Y, right button Z";
    case Tool::Rotate:
      return "Rotate: about the origin, left button Y and X, right button Z";
    case Tool::Scale:
      return "Scale: the chosen points, about the origin";
    case Tool::PickPoints:
      return "Pick Points: drag to choose, right button takes off, Shift takes all";
    case Tool::MoveOrigin:
      return "Move Origin: left button X and Y, right button Z";
    case Tool::MovePoint:
      return "Move Point: drag the nearest point of the profile";
    case Tool::None:
      break;
  }
  return HintOfView(app);
}

}  // namespace pelorium
