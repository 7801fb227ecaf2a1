// A grid of points whose heights come from waves, tilts, curves and profiles.
#pragma once

#include "core/model_store.h"

namespace pelorium {

// The heights along one direction of the grid: amplitude * sin or cos (frequency * n) + tilt * n + curve *
// n^2, n the number of the row or column.
struct GridWave {
  double frequency = 1, amplitude = 0, tilt = 0, curve = 0;
};

struct MeshGridSettings {
  int part = 0;
  int columns = 10, rows = 10;
  double firstColumn = 0, firstRow = 0;  // their numbers; the next ones are 1 more each
  double spacingX = 40, spacingY = 40;   // units
  double height = 10;                    // Z before the waves
  GridWave alongRows, alongColumns;      // a sine of the row, a cosine of the column
  // Heights from profiles. The k-th row and column take layer k of them, from 0, held at 36.
  int rowTimesColumn = 0;  // this profile's additive amount 1 at the row, times its Z at the column
  int columnTimesRow = 0;  // this profile's additive amount 2 at the column, times its Z at the row
  int rowProfile = 0;      // its Z at the row, times the factor
  double rowFactor = 0;
  int columnProfile = 0;
  double columnFactor = 0;
};

// Points from number 1 on, row by row; one more stands on the place of the last, since the Part counts one
// more. Rows that would pass point 23000 are left out; a place that is not finite raises Overflow before
// anything is stored. Returns what was laid, the spare point aside.
LaidGrid LayMeshGrid(ModelStore& model, const MeshGridSettings& settings);

}  // namespace pelorium
