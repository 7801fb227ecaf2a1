// Plain forms of a profile: each point follows from its number alone. They set the profile's count and the
// points of the range like all formulas, take no noise, and write over what stands there, additive or not.
#pragma once

#include "profiles/profile_formulas.h"

namespace pelorium {

// A wave in X; Y and Z rise together.
void LaySinWave(ModelStore& model, const FormulaSettings& settings);
// A wave in Y and Z alike, rising in X.
void LaySinWave2(ModelStore& model, const FormulaSettings& settings);
// A slope in Y, the same slope with a wave on it in Z, rising in X.
void LaySinWave3(ModelStore& model, const FormulaSettings& settings);
// A parabola in X, rising in Z from the origin's Y, at one elevation.
void LayParabula2(ModelStore& model, const FormulaSettings& settings);
// A parabola in X; Y and Z rise together.
void LayFunnel(ModelStore& model, const FormulaSettings& settings);
// Regular spaces in X, from 0 at point 0; Y and Z stay.
void LayRegularX(ModelStore& model, const FormulaSettings& settings);

}  // namespace pelorium
