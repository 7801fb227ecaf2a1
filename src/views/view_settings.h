// What the wire views draw, and how: everything that the View Options and their companions say.
#pragma once

#include <string_view>

#include "core/model_store.h"

namespace pelorium {

// How a point (X, Y, Z) comes to the screen, pans aside.
enum class Projection {
  Top,     // X, Y
  Front,   // X, Z
  Side,    // Z, Y
  Oblique  // X, Z + 0.25 * Y: Y leans into the picture, and the view does not turn
};

enum class ViewMode { None, Profile, Top, Tesselate, Front, Side, View3D, Tri };

struct ViewSettings {
  ViewMode mode = ViewMode::None;
  Projection profileProjection = Projection::Front;  // of the profile view
  double panX = 0, panY = 0;                         // added to every screen position
  double triSeparation = 0;                          // between the three pictures of the tri view
  int gridSpacing = 50;                              // at least 1
  int currentPart = 0, currentProfile = 0;
  int firstChosenPoint = 1, lastChosenPoint = 0;
  int chosenPoint = 0;  // drawn larger
  int chosenFace = 1;
  Vec3 origin;  // pivot of all turns, drawn as a cross
  bool showGrid = true;
  bool showWire = true;  // of both user Parts
  bool showChosenFace = false;
  bool showOtherParts = true;      // not only the current one, with either
  bool showAllPoints = false;      // of both user Parts
  bool showChosenPoints = true;    // the chosen range of the current Part
  bool showProfile = false;        // the current profile over the mesh
  bool showOtherProfiles = false;  // all profiles over the mesh
  bool showPartsInProfileView = false;
  bool showOrigin = true;
};

struct ScreenPoint {
  double x, y;
};

inline constexpr double kObliqueLean = 0.25;

constexpr ScreenPoint Project(Projection projection, double x, double y, double z) {
  switch (projection) {
    case Projection::Top:
      return {x, y};
    case Projection::Front:
      return {x, z};
    case Projection::Side:
      return {z, y};
    case Projection::Oblique:
      return {x, z + kObliqueLean * y};
  }
  return {x, y};
}

// What the view is called over the picture; empty when no wire view is chosen.
std::string_view ViewCaption(const ViewSettings& settings);

}  // namespace pelorium
