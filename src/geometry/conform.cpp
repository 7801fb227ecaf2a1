// Conforming to gray levels.
#include "geometry/conform.h"

#include "geometry/finite.h"
#include "graphics/picture_gray.h"

namespace pelorium {

namespace {

constexpr double kRowOfZero = 637;  // of the picture's rows, from the top

template <typename Act>
void ForEachTaken(ModelStore& model, const Picture& picture, const ConformRange& range, Act act) {
  ForEachChosen(model, range.chosen, [&](int, PointRec& point) {
    if (!(point.Z >= range.minZ && point.Z <= range.maxZ)) return;
    const int gray = GrayAt(picture, point.X, kRowOfZero - point.Y);
    if (gray >= 0 && gray >= range.minGray && gray <= range.maxGray) act(point, gray);
  });
}

}  // namespace

// The origin is taken off and put back on both axes, whichever is scaled: the last digits depend on it.
void ConformToGray(ModelStore& model, const Picture& picture, const ConformRange& range,
                   const ConformScale& scale) {
  const double factorX = scale.alongX ? scale.factor : 1, factorY = scale.alongY ? scale.factor : 1;
  ForEachTaken(model, picture, range, [&](PointRec& point, int) {
    point.X = Finite((point.X - scale.origin.X) * factorX + scale.origin.X);
    point.Y = Finite((point.Y - scale.origin.Y) * factorY + scale.origin.Y);
  });
}

void LiftToGray(ModelStore& model, const Picture& picture, const ConformRange& range, double height) {
  ForEachTaken(model, picture, range, [=](PointRec& point, int gray) { point.Z = Finite(gray * height); });
}

}  // namespace pelorium
