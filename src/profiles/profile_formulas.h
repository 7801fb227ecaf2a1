// Fills a profile by a formula instead of by drawing: circle, sine and parabola, with decays, steps and
// noise.
#pragma once

#include "core/model_store.h"

namespace pelorium {

class RandomSeries;

// The parameters of all formulas; each takes those it names. Angles in degrees, a decay is taken off at each
// point.
struct FormulaSettings {
  int profile = 0;
  double firstPoint = 0,
         lastPoint = 36;  // the points written, rounded half to even; those outside 0..36 are not
  double maxPoints = 36;  // becomes the profile's count, rounded half to even and held in 0..36
  bool additive = false;  // adds to the points as they stand and leaves their elevation
  Vec3 origin;

  double elevation = 300;
  double xStart = 0, zStart = 0;        // position at the first point, in spacings
  double xInterval = 2, zInterval = 2;  // what the position grows by at each point
  double xSpacing = 10, zSpacing = 0;
  double degrees = 10.2857142857143, degreesDecay = 0;  // turn from point to point
  double xDecay = 0, yDecay = 0, zDecay = 0;
  double xNoise = 0, zNoise = 0;  // the most that a point is moved at random, one way only

  double xRadius = 100, zRadius = 100;
  double amplitude = 50;
  double power = 2, powerDecay = 0;
  double parabulaAmplitude = .36;

  // The plain forms of simple_waves.h. Whole numbers, as the bars stand, whatever is typed beside them.
  double barElevation = 300, barSpacing = 10, barZDecay = 0, barParabulaAmplitude = 36;
  double funnelFactor = 1;
  double waveAmplitude = 1, waveFrequency = .02, waveLevel = 20;  // frequency in radians a point
  double waveSpacing = 2, waveOffset = 10, wave3Offset = 0, wave3Factor = 1;
};

// The points that a formula writes; none if first > last.
struct LayerRange {
  int first, last;
};

// How every formula begins: sets the profile's count and tells the points to write.
LayerRange BeginFormula(ModelStore& model, const FormulaSettings& settings);

// Moves a profile point; a coordinate that is no finite number raises Overflow and leaves the point.
void MoveProfilePoint(ProfilePointRec& point, const Vec3& position);

// Each point draws two random numbers, the first for X, the second for Z. A radius that decays below zero
// turns the circle inside out.
void LayCircle(ModelStore& model, const FormulaSettings& settings, RandomSeries& random);
// Waves in Z along X. The origin's X shifts Z and its Z shifts X; additive adds to Z only.
void LaySine(ModelStore& model, const FormulaSettings& settings, RandomSeries& random);
// The same with noise in X alone: one random number a point.
void LaySineX(ModelStore& model, const FormulaSettings& settings, RandomSeries& random);
// Z grows with a power of the position along X; additive adds to Z only. Left of zero the power is always 2,
// since a negative number has no broken powers.
void LayParabula(ModelStore& model, const FormulaSettings& settings, RandomSeries& random);

}  // namespace pelorium
