// The formulas. The order of the arithmetic and of the random numbers decides the last digits; it stays.
#include "profiles/profile_formulas.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "base/numbers.h"
#include "base/random_series.h"

namespace pelorium {

namespace {

// What every formula carries from point to point.
struct Course {
  explicit Course(const FormulaSettings& s) : y(s.elevation), x(s.xStart), z(s.zStart) {}
  void Advance(const FormulaSettings& s) {
    x += s.xInterval;
    z += s.zInterval;
  }
  double y;     // units
  double x, z;  // in spacings
};

struct Noise {
  double x, z;
};

Noise DrawNoise(const FormulaSettings& s, RandomSeries& random) {
  const double x = random.Next() * s.xNoise;
  const double z = random.Next() * s.zNoise;
  return {x, z};
}

int HeldLayer(double value) {
  return static_cast<int>(RoundHalfEven(std::clamp(value, 0.0, static_cast<double>(kMaxLayer))));
}

enum class NoiseIn { XAndZ, X };

void LaySineWith(NoiseIn noiseIn, ModelStore& model, const FormulaSettings& s, RandomSeries& random) {
  const auto [first, last] = BeginFormula(model, s);
  Course course(s);
  double amplitude = s.amplitude, spacing = s.xSpacing, degrees = s.degrees;
  for (int i = first; i <= last; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, s.profile);
    const double turn = degrees * i * kRadiansPerDegree;
    amplitude -= s.zDecay;
    spacing -= s.xDecay;
    degrees -= s.degreesDecay;
    course.y -= s.yDecay;
    const Noise noise = noiseIn == NoiseIn::X ? Noise{random.Next() * s.xNoise, 0} : DrawNoise(s, random);
    Vec3 p;
    p.Z = s.origin.X + amplitude * std::sin(turn);
    if (s.additive) p.Z = point.Z + p.Z;
    p.X = s.origin.Z + course.x * spacing;
    p.Z += s.zSpacing * course.z;
    p.X += noise.x;
    p.Z += noise.z;
    p.Y = s.additive ? point.Y : course.y;
    MoveProfilePoint(point, p);
    course.Advance(s);
  }
}

}  // namespace

LayerRange BeginFormula(ModelStore& model, const FormulaSettings& settings) {
  model.Profile(settings.profile).count = static_cast<std::int16_t>(HeldLayer(settings.maxPoints));
  const double first = RoundHalfEven(settings.firstPoint), last = RoundHalfEven(settings.lastPoint);
  if (first > kMaxLayer || last < 0) return {0, -1};
  return {HeldLayer(first), HeldLayer(last)};
}

void MoveProfilePoint(ProfilePointRec& point, const Vec3& position) {
  for (double coordinate : {position.X, position.Y, position.Z}) {
    if (!std::isfinite(coordinate)) RaiseOverflow(coordinate);
  }
  CopyPosition(point, position);
}

void LayCircle(ModelStore& model, const FormulaSettings& s, RandomSeries& random) {
  const auto [first, last] = BeginFormula(model, s);
  Course course(s);
  double xRadius = s.xRadius, zRadius = s.zRadius, angle = 0, decay = 0;
  for (int i = first; i <= last; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, s.profile);
    angle += s.degrees;
    decay += s.degreesDecay;
    angle -= decay;
    xRadius -= s.xDecay;
    zRadius -= s.zDecay;
    course.y -= s.yDecay;
    const Noise noise = DrawNoise(s, random);
    const double turn = angle * kRadiansPerDegree;
    Vec3 p{s.origin.X + std::cos(turn) * xRadius, course.y, s.origin.Z + std::sin(turn) * zRadius};
    if (s.additive) p = {point.X + p.X, point.Y, point.Z + p.Z};
    p.X += noise.x;
    p.Z += noise.z;
    p.X += s.xSpacing * course.x;
    p.Z += s.zSpacing * course.z;
    MoveProfilePoint(point, p);
    course.Advance(s);
  }
}

void LaySine(ModelStore& model, const FormulaSettings& s, RandomSeries& random) {
  LaySineWith(NoiseIn::XAndZ, model, s, random);
}

void LaySineX(ModelStore& model, const FormulaSettings& s, RandomSeries& random) {
  LaySineWith(NoiseIn::X, model, s, random);
}

void LayParabula(ModelStore& model, const FormulaSettings& s, RandomSeries& random) {
  const auto [first, last] = BeginFormula(model, s);
  Course course(s);
  double power = std::abs(s.power), spacing = s.xSpacing;
  for (int i = first; i <= last; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, s.profile);
    power = std::max(0.0, power - s.powerDecay);
    spacing -= s.xDecay;
    course.y -= s.yDecay;
    Vec3 p;
    p.X = s.origin.X + spacing * course.x;
    p.Z = s.origin.Z + s.parabulaAmplitude * std::pow(course.x, course.x < 0 ? 2 : power);
    if (s.additive) p.Z = point.Z + p.Z;
    const Noise noise = DrawNoise(s, random);
    p.X += noise.x;
    p.Z += noise.z;
    p.Z += s.zSpacing * course.z;
    p.Y = s.additive ? point.Y : course.y;
    MoveProfilePoint(point, p);
    course.Advance(s);
  }
}

}  // namespace pelorium
