// The revolve. The order of the arithmetic decides the last digits of the points; it stays.
#include "geometry/revolve.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "core/part_operations.h"
#include "geometry/rot.h"

namespace pelorium {

namespace {

constexpr int kLastLayerStart = 35;  // one more layer is laid behind the last, so 36 is the highest

int LastLayer(const RevolveSettings& settings) { return std::min(settings.lastLayer, kLastLayerStart); }

// The radii of a layer as they run along its ring: each section starts from the one before.
struct Radii {
  double x;
  std::int32_t y;  // a whole number: a profile radius of 10.6 gives a ring 10.6 by 11
};

class Ring {
 public:
  Ring(ModelStore& model, const RevolveSettings& settings, int layer)
      : settings_(settings),
        general_(model.Profile(settings.profile)),
        profilePoint_(model.ProfilePts(layer, settings.profile)),
        layer_(layer),
        generalTurns_(Turns::By(general_.genSpinZ, general_.genTurnY, general_.genRotateX)),
        radii_{profilePoint_.X, ToInteger<std::int32_t>(profilePoint_.X)} {}

  void SpaceRegularly() { profilePoint_.Z = rise_ + settings_.spacing * layer_; }

  Vec3 NextPosition(int section) {
    const double turn = settings_.degreesPerSection * std::floor(counter_) * kRadiansPerDegree;
    counter_ += settings_.increment;
    Modulate(turn);
    const double shift = section * settings_.spiral;
    Vec3 p{std::cos(turn) * radii_.x, std::sin(turn) * radii_.y, rise_ + profilePoint_.Z};
    p.X += shift;
    p.Y += shift;
    return PositionGenerally(p);
  }

  void Rise() { rise_ += settings_.corkscrew; }

 private:
  void Modulate(double turn) {
    const RevolveSettings& s = settings_;
    radii_.x += s.petalAmp * (std::sin(s.petalsX * turn) * s.multiplyX);
    radii_.y = ToInteger<std::int32_t>(radii_.y + s.petalAmp * (std::sin(s.petalsY * turn) * s.multiplyY));
  }

  Vec3 PositionGenerally(Vec3 p) const {
    const Vec3& o = settings_.origin;
    p.Y += o.Y;
    p.X += o.X;
    p.X *= general_.genMultX;
    p.Y *= general_.genMultY;
    p.Z *= general_.genMultZ;
    RotAll(p, generalTurns_, o);
    p.X += general_.genMoveX;
    p.Y += general_.genMoveY;
    p.Z += general_.genMoveZ;
    p.Z *= -1.0;
    return p;
  }

  const RevolveSettings& settings_;
  const ProfileHeader& general_;
  ProfilePointRec& profilePoint_;
  int layer_;
  Turns generalTurns_;
  Radii radii_;
  double counter_ = 0;
  double rise_ = 0;
};

}  // namespace

int RingWidth(const RevolveSettings& settings) {
  return std::max(0, settings.lastSection - settings.firstSection + 1);
}

int MeshedRows(const RevolveSettings& settings) {
  return std::max(0, std::min(settings.layersLimit, LastLayer(settings) + 1) - settings.firstLayer);
}

void LayRevolvedPoints(ModelStore& model, const RevolveSettings& settings) {
  double number = 1;
  for (int layer = settings.firstLayer; layer <= LastLayer(settings) + 1; ++layer) {
    Ring ring(model, settings, layer);
    const bool isPlaced = layer >= settings.firstPlaced && layer <= settings.lastPlaced;
    for (int section = settings.firstSection; section <= settings.lastSection; ++section) {
      if (settings.regularSpacing) ring.SpaceRegularly();
      const int point = ToInteger<int>(number);
      if (isPlaced) LayPoint(model, settings.part, point, ring.NextPosition(section));
      number += settings.increment;
      ring.Rise();
    }
  }
  const long long points = static_cast<long long>(MeshedRows(settings) + 1) * RingWidth(settings) + 1;
  PartHeader& header = model.Part(settings.part);
  header.maxpoints = static_cast<std::int16_t>(std::min<long long>(points, kMaxPoints));
  header.minpoints = 1;
}

}  // namespace pelorium
