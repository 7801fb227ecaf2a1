// Plain forms of a profile. The order of the arithmetic decides the last digits; it stays.
#include "profiles/simple_waves.h"

#include <cmath>

namespace pelorium {

namespace {

// `position` gives the place of point number i.
template <typename Position>
void LayEach(ModelStore& model, const FormulaSettings& settings, Position&& position) {
  const auto [first, last] = BeginFormula(model, settings);
  for (int i = first; i <= last; ++i) {
    MoveProfilePoint(model.ProfilePts(i, settings.profile), position(i));
  }
}

double Wave(const FormulaSettings& s, int i) {
  return s.waveAmplitude * std::sin(i * s.waveFrequency) + s.waveLevel;
}

double Rise(const FormulaSettings& s, int i) { return s.waveSpacing * i + s.waveOffset; }

}  // namespace

void LaySinWave(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) { return Vec3{Wave(s, i), Rise(s, i), Rise(s, i)}; });
}

void LaySinWave2(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) { return Vec3{Rise(s, i), Wave(s, i), Wave(s, i)}; });
}

void LaySinWave3(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) {
    const double slope = s.waveAmplitude * i + s.waveLevel;
    return Vec3{Rise(s, i), slope, slope + std::sin(s.wave3Factor * (i * s.waveFrequency)) + s.wave3Offset};
  });
}

void LayParabula2(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) {
    return Vec3{s.origin.X + s.parabulaAmplitude * (i * i), s.barElevation, s.origin.Y + s.barSpacing * i};
  });
}

void LayFunnel(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) {
    const double rise = s.barSpacing * i + s.barParabulaAmplitude;
    return Vec3{s.funnelFactor * (i * i) + s.barZDecay, rise, rise};
  });
}

void LayRegularX(ModelStore& model, const FormulaSettings& s) {
  LayEach(model, s, [&](int i) {
    const ProfilePointRec& point = model.ProfilePts(i, s.profile);
    return Vec3{s.xSpacing * i, point.Y, point.Z};
  });
}

}  // namespace pelorium
