// The model's place in a view.
#include "views/fit_view.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr double kFilledShare = 0.9;

struct PlacedPicture {
  Projection projection;
  double x = 0, y = 0;  // where its zero lies
};

std::array<PlacedPicture, 3> PicturesOf(const ViewSettings& settings) {
  const double apart = settings.triSeparation;
  const auto thrice = [](Projection projection) {
    return std::array<PlacedPicture, 3>{{{projection}, {projection}, {projection}}};
  };
  switch (settings.mode) {
    case ViewMode::Tri:
      return {{{Projection::Top}, {Projection::Front, 0, apart}, {Projection::Side, apart, 0}}};
    case ViewMode::Front:
      return thrice(Projection::Front);
    case ViewMode::Side:
      return thrice(Projection::Side);
    case ViewMode::View3D:
      return thrice(Projection::Oblique);
    case ViewMode::Profile:
      return thrice(settings.profileProjection);
    case ViewMode::None:
    case ViewMode::Top:
    case ViewMode::Tesselate:
      break;
  }
  return thrice(Projection::Top);
}

template <typename Act>
void ForEachPointInUse(const ModelStore& model, Act act) {
  for (int part = 0; part < kUserParts; ++part) {
    for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) act(point);
  }
}

int WholePan(double pan) { return static_cast<int>(RoundHalfEven(std::clamp(pan, -1e9, 1e9))); }

}  // namespace

std::optional<ScreenExtent> ExtentInView(const ModelStore& model, const ViewSettings& settings) {
  const auto pictures = PicturesOf(settings);
  std::optional<ScreenExtent> extent;
  ForEachPointInUse(model, [&](const PointRec& point) {
    for (const PlacedPicture& picture : pictures) {
      const ScreenPoint at = Project(picture.projection, point.X, point.Y, point.Z);
      const double x = at.x + picture.x, y = at.y + picture.y;
      if (!extent) extent = ScreenExtent{x, x, y, y};
      extent->left = std::min(extent->left, x), extent->right = std::max(extent->right, x);
      extent->bottom = std::min(extent->bottom, y), extent->top = std::max(extent->top, y);
    }
  });
  return extent;
}

double ReachOfParts(const ModelStore& model) {
  double reach = 0;
  ForEachPointInUse(model, [&reach](const PointRec& point) {
    reach = std::max(reach, std::sqrt(point.X * point.X + point.Y * point.Y + point.Z * point.Z));
  });
  return reach;
}

FittedView FitInto(const ScreenExtent& extent, int pixelWidth, int pixelHeight) {
  FittedView view;
  const double across = (extent.right - extent.left) / (kFilledShare * pixelWidth);
  const double up = (extent.top - extent.bottom) / (kFilledShare * pixelHeight);
  if (std::max(across, up) > 0) view.unitsPerPixel = std::max(across, up);
  view.panX = WholePan(pixelWidth * view.unitsPerPixel / 2 - (extent.left + extent.right) / 2);
  view.panY = WholePan(-pixelHeight * view.unitsPerPixel / 2 - (extent.bottom + extent.top) / 2);
  return view;
}

}  // namespace pelorium
