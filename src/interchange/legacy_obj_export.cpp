// The grid exports.
#include "interchange/legacy_obj_export.h"

#include <algorithm>

#include "base/numbers.h"

namespace pelorium {

namespace {

void WriteVertex(const ProfilePointRec& point, TextWriter& out) {
  out.Text("v ").General(point.X).Text(" ").General(-point.Z).Text(" ").General(point.Y).EndLine();
}

void WriteGroup(const GridExportSettings& settings, int profile, TextWriter& out) {
  if (settings.groupPerLayer) out.Text("g layer").Integer(profile).EndLine();
}

void WriteTriangle(const CellTriangle& triangle, CellFaces faces, TextWriter& out) {
  for (const ProfilePointRec* point : triangle) WriteVertex(*point, out);
  if (faces == CellFaces::Forward) out.Line("f -3 -2 -1");
  if (faces == CellFaces::Backward) out.Line("f -1 -2 -3");
}

void WriteCap(const ModelStore& model, const ProfileGrid& grid, int profile, TextWriter& out) {
  const int points = grid.lastPoint - grid.firstPoint + 1;
  for (int i = 0; i < points; ++i) WriteVertex(model.ProfilePts(grid.firstPoint + i, profile), out);
  out.Text("f");
  for (int i = 1; i <= points; ++i) out.Text(" ").Integer(-i);
  out.EndLine();
}

void WriteCaps(const ModelStore& model, const GridExportSettings& settings, TextWriter& out) {
  if (!settings.cappedProfile) return;
  const ProfileHeader& ticks = model.Profile(*settings.cappedProfile);
  if (ticks.bottomCap == 1) WriteCap(model, settings.grid, settings.grid.firstProfile, out);
  if (ticks.topCap == 1) WriteCap(model, settings.grid, settings.grid.lastProfile, out);
}

}  // namespace

void WriteSeparateCells(const ModelStore& model, const GridExportSettings& settings, CellFaces faces,
                        TextWriter& out) {
  const ProfileGrid& grid = settings.grid;
  for (int profile = grid.firstProfile; profile < grid.lastProfile; ++profile) {
    WriteGroup(settings, profile, out);
    for (int point = grid.firstPoint; point < grid.lastPoint; ++point) {
      for (const CellTriangle& t : TrianglesOfCell(model, profile, point)) WriteTriangle(t, faces, out);
    }
  }
  WriteCaps(model, settings, out);
}

void WriteJoinedCells(const ModelStore& model, const GridExportSettings& settings, TextWriter& out) {
  const ProfileGrid& grid = settings.grid;
  for (int profile = grid.firstProfile; profile <= grid.lastProfile; ++profile) {
    for (int point = grid.firstPoint; point <= grid.lastPoint; ++point) {
      WriteVertex(model.ProfilePts(point, profile), out);
    }
  }
  const int row = grid.lastPoint - grid.firstPoint + 1;
  for (int profile = grid.firstProfile; profile < grid.lastProfile; ++profile) {
    WriteGroup(settings, profile, out);
    for (int point = grid.firstPoint; point < grid.lastPoint; ++point) {
      const int a = (profile - grid.firstProfile) * row + point - grid.firstPoint + 1;
      out.Text("f ").Integer(a).Text(" ").Integer(a + 1).Text(" ");
      out.Integer(a + 1 + row).Text(" ").Integer(a + row).EndLine();
    }
  }
}

void RoundProfilePoints(ModelStore& model, int decimals) {
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    for (int i = 0; i <= kMaxLayer; ++i) {
      ProfilePointRec& point = model.ProfilePts(i, profile);
      point.X = RoundTo(point.X, decimals);
      point.Y = RoundTo(point.Y, decimals);
      point.Z = RoundTo(point.Z, decimals);
    }
  }
}

}  // namespace pelorium
