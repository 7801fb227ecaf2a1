// The mesh grid.
#include "geometry/mesh_grid.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/numbers.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

// The order of the terms decides the last digits.
double Raised(double z, const GridWave& wave, double swing, double n) {
  return wave.amplitude * swing + z + n * wave.tilt + n * n * wave.curve;
}

double ProfileHeight(const ModelStore& model, const MeshGridSettings& s, double z, int column, int row) {
  const int c = std::min(column, kMaxLayer), r = std::min(row, kMaxLayer);
  z += model.ProfilePts(r, s.rowTimesColumn).addZAmt1 * model.ProfilePts(c, s.rowTimesColumn).Z;
  z += model.ProfilePts(c, s.columnTimesRow).addZAmt2 * model.ProfilePts(r, s.columnTimesRow).Z;
  z += model.ProfilePts(r, s.rowProfile).Z * s.rowFactor;
  z += model.ProfilePts(c, s.columnProfile).Z * s.columnFactor;
  return z;
}

Vec3 PlaceOf(const ModelStore& model, const MeshGridSettings& s, int column, int row) {
  const double c = s.firstColumn + column, r = s.firstRow + row;
  double z = Raised(s.height, s.alongRows, std::sin(s.alongRows.frequency * r), r);
  z = Raised(z, s.alongColumns, std::cos(s.alongColumns.frequency * c), c);
  return {c * s.spacingX, r * s.spacingY, ProfileHeight(model, s, z, column, row)};
}

std::vector<Vec3> PlacesOf(const ModelStore& model, const MeshGridSettings& s, const LaidGrid& grid) {
  std::vector<Vec3> places;
  places.reserve(static_cast<std::size_t>(grid.width) * static_cast<std::size_t>(grid.rows));
  for (int row = 0; row < grid.rows; ++row) {
    for (int column = 0; column < grid.width; ++column) {
      const Vec3 place = PlaceOf(model, s, column, row);
      for (const double coordinate : {place.X, place.Y, place.Z}) {
        if (!std::isfinite(coordinate)) RaiseOverflow(coordinate);
      }
      places.push_back(place);
    }
  }
  return places;
}

}  // namespace

LaidGrid LayMeshGrid(ModelStore& model, const MeshGridSettings& settings) {
  LaidGrid grid;
  grid.width = std::clamp(settings.columns, 0, kMaxPoints);
  if (grid.width > 0) grid.rows = std::clamp(settings.rows, 0, kMaxPoints / grid.width);
  const std::vector<Vec3> places = PlacesOf(model, settings, grid);
  int number = 0;
  for (const Vec3& place : places) LayPoint(model, settings.part, ++number, place);
  if (number > 0 && number < kMaxPoints) LayPoint(model, settings.part, number + 1, places.back());
  return grid;
}

}  // namespace pelorium
